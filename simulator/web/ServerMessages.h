#pragma once

#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "simulator/screen/ScreenRows.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// What pages are told besides pixels: JSON in ASCII, one member for each thing that is told.

/// First of all: which program this is, and on which panel.
std::string applicationMessage(std::string_view program, std::string_view panel);

/// The rows of a frame, and the telephone's language as the web names it.
/// {"language":"en-GB","rows":[{"text":"Line 1  09:41","selected":false,"lasting":"Line 1"}]}; `lasting` only where it
/// differs from the text. Text that is no UTF-8 gets U+FFFD where it is not; of long texts it is the beginning.
std::string rowsMessage(const std::vector<ScreenRow>& rows, std::string_view language);

/// The GUI thread stands still, or goes on.
std::string standingMessage(bool isStanding);

/// The programmable keys beside the panel, from the first on: whether the lamp of each is lit.
/// {"lamps":[true,false]}
std::string lampsMessage(const std::vector<bool>& lamps);

/// What the program's exchange offers, the first hundred; null where there is no exchange.
/// {"exchange":[{"label":"Ada","line":"4711 calls"}]}
std::string exchangeMessage(const std::optional<std::vector<host::Wire::Offer>>& offers);

/// The lamp on the case, "dark", "lit" or "blinks", and whether the handset is lifted.
/// {"signs":{"lamp":"blinks","lifted":false}}
std::string signsMessage(host::CallSigns signs);

/// What the exchange has said to this page's line: why nothing comes of it, or an empty text.
std::string answerMessage(const std::string& answer);

/// So many pages are open, and there is no room for this one.
std::string fullMessage(std::size_t pages);

/// The application has ended in order.
std::string endedMessage();

/// "en_GB.UTF-8" is "en-GB"; empty where the locale names no language.
std::string languageTag(std::string_view locale);

} // namespace simulator
