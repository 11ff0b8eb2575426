#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

using Texts = std::unordered_map<std::string, std::string>;

/// The texts by their keys of a catalogue that msgfmt has compiled (.mo), the header under the empty key. Of plurals
/// the first. Nothing where the bytes are no such catalogue or a part of one: they may come from anywhere.
std::optional<Texts> readCompiledTexts(std::string_view bytes);

} // namespace host
