#pragma once

#include "apps/exchange/Call.h"

#include <string>

class TranslatorIfc;

namespace deskphone {

/// A text with what stands in the place of its %1, in the language of the moment.
std::string words(TranslatorIfc& translator, const std::string& key, const std::string& argument = {});

/// The key of the words for the state of a call that the user takes part in.
std::string keyOf(exchange::CallState state);

/// The key of the words for a call that was never answered; empty where there is nothing to say about that.
std::string keyOf(exchange::Reason reason);

/// What the user is told of what has come to nothing, in the language of the moment: an exchange's own reason is
/// translated where it is a known one, and stands as it is where it is not. Empty where there is nothing to say.
std::string reasonOf(const exchange::CallEvent& event, TranslatorIfc& translator);

/// A name, or the number where there is none.
std::string nameOf(const exchange::Party& party);

} // namespace deskphone
