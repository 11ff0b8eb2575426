#pragma once

#include <cstdint>

namespace host {

/// The scripts of plain characters. Common ones are of the script of what they stand behind.
enum class Script : std::uint8_t { OTHER, COMMON, LATIN, GREEK, CYRILLIC };

/// OTHER for every character that is not plain.
Script scriptOf(char16_t character);

/// Whether the character stands for itself wherever it stands, and is read from the left: letters of Latin, Greek and
/// Cyrillic, with their accents in one character, digits, punctuation, arrows. Not what changes or joins its
/// neighbours.
inline bool isPlain(char16_t character)
{
    return scriptOf(character) != Script::OTHER;
}

/// Brackets and quotation marks: the closing one is of the script of the opening one.
bool comesInPairs(char16_t character);

} // namespace host
