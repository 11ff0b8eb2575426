#pragma once

#include "host/widgets/edit/KeypadLetters.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace host {

/// What is typed into a field. A character that the kind does not know is refused; a text that somebody sets loses the
/// characters that are refused, and nothing else.
enum class EditKind {
    TEXT,         ///< anything
    NAME,         ///< the same; words begin with a capital letter
    NUMBER,       ///< digits
    PHONE_NUMBER, ///< digits, star, hash, what separates them, comma and semicolon for pauses; a held zero is a plus
    PASSWORD,     ///< shown as dots; the keys type what is there in every language
    IP_ADDRESS,   ///< four numbers up to 255 with dots between them; star is the dot
    DATE,         ///< "2026-11-22"; the hyphens come by themselves, and star is one
    TIME          ///< "23:59"; the colon comes by itself, and star is one
};

/// The input modes, of which the first one counts at first.
std::vector<InputMode> modesOf(EditKind kind);

/// What star offers; a single one is typed at once. None for kinds that are digits alone.
std::u16string_view symbolsOf(EditKind kind);

/// Whether the character may be put before position `at` of the text.
bool fits(EditKind kind, std::u16string_view text, std::size_t at, char16_t character);

/// Whether it may be the text, or a part of it that is typed by and by.
bool couldBe(EditKind kind, std::u16string_view text);

/// What has to stand before a digit at this place because the part before it is complete; 0 is nothing.
char16_t separatorBefore(EditKind kind, std::u16string_view text, std::size_t at);

} // namespace host
