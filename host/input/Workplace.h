#pragma once

#include "toolkit/PegMessage.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

/// Things of one kind that the user can go to with the keys: they stand one below or beside the other.
struct Choices {
    enum class Kind {
        ROWS,   ///< of a list
        FIELDS, ///< of a form, each with its label and its value
        MENU,   ///< commands one below the other
        VALUES, ///< of a field, one below the other
        BAR,    ///< commands side by side
        TABS
    };
    using Texts = std::vector<std::string>; ///< UTF-8; the first one is what it is called

    Kind kind = Kind::ROWS;
    int count = 0;
    int current = -1;      ///< -1 where none is
    bool hasKeys = false;  ///< the keys go to it; else another part of the screen has them
    bool isAtBack = false; ///< the current one leads back as the left key does: not every panel has it
    bool isRing = false;   ///< the first one comes behind the last
    PegKey before = PK_UP; ///< leads to the one before the current one
    PegKey behind = PK_DOWN;
    Texts texts{};              ///< of the current one
    std::vector<int> found{};   ///< those of which a text is what has been looked for, but for what leads back
    std::vector<int> similar{}; ///< those of which a text has it in it
    Texts names{};              ///< what the first ones are called
};

/// What the user types into.
struct EditedText {
    std::string text; ///< in full, a password's too
    int cursor = 0;
    bool isDialler = false;    ///< in a popup of its own, where OK is the bar's
    bool takesAllKeys = false; ///< symbols are offered
};

/// What the user's keys work on.
struct Workplace {
    const void* window = nullptr;   ///< on which he works; tells one from another
    std::string title;              ///< of the list, of the form or of the popup
    std::vector<std::string> lines; ///< below a popup's title
    std::vector<Choices> choices;   ///< those of which he can reach one
    std::optional<EditedText> edited;

    /// The part to which the keys go; null where that has no choices.
    const Choices* withKeys() const;

    /// Null where there is none of that kind.
    const Choices* part(Choices::Kind kind) const;

    /// Looks for any of the texts among all that he can choose. GUI thread only.
    /// REQUIRES: the toolkit is up.
    /// Cost: grows with the number of rows where something is looked for.
    static Workplace read(const Choices::Texts& wanted = {});

    enum class Typed { TAKEN, OTHERWISE, NOWHERE };

    /// Puts UTF-8 into what the user types into, as if he had typed it in place of the text that is there: OTHERWISE
    /// where that takes no such text, and has another one now. GUI thread only. REQUIRES: the toolkit is up.
    static Typed type(const std::string& text);
};

} // namespace host
