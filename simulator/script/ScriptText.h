#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// A text of a script, whatever language the telephone has: pieces one behind the other.
///
///     "Ada Byron"                             as it stands; \" \\ \n \t \x1B \u200F are one character
///     _("Menu.contacts")                      what the catalogue in use has for the key
///     _("Menu.contacts" or "Contacts.title")  for any of the keys
///     _("Contacts.found", "4", _("Group.family"))  with that in the place of %1 and %2
///     _("Menu.calls") " (3)"                  both
struct ScriptText {
    struct Piece {
        bool isTranslated = false;
        std::vector<std::string> texts; ///< the text, or the keys
        std::vector<ScriptText> arguments{};

        bool operator==(const Piece&) const = default;
    };

    std::vector<Piece> pieces;

    bool operator==(const ScriptText&) const = default;

    static ScriptText literal(std::string text);

    /// Whether it begins as such a text does.
    static bool isQuoted(std::string_view text);

    /// Takes such a text off the front of `rest`. Throws std::invalid_argument with a sentence where there is none.
    static ScriptText take(std::string_view& rest);

    /// As a script has it, in printable characters on one line.
    std::string written() const;

    using Translate = std::function<std::string(const std::string& key)>;

    /// What may stand on the screen for it, at least one text and at most MOST_TEXTS, each once, by the first keys
    /// first.
    std::vector<std::string> shown(const Translate& translate) const;

    static constexpr std::size_t MOST_TEXTS = 16;
    static constexpr std::size_t MOST_PIECES = 100;
    static constexpr std::size_t MOST_ARGUMENTS = 9; ///< %1 to %9
};

/// Whether it is as one reads it: UTF-8 on one line, with nothing unseen in it and nothing that turns other text round.
bool isPlainLine(std::string_view text);

/// The text as a plain line: what is odd in it as it is in quotes.
std::string onOneLine(std::string_view text);

/// In double quotes, as a script has it.
std::string quotedForScript(std::string_view text);

} // namespace simulator
