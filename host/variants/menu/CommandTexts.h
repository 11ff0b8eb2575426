#pragma once

#include "DisplayAPI/Command.h"
#include "host/widgets/menu/CommandColumn.h"

#include <optional>

namespace DisplayAPI {

/// Reads commands that another thread may delete meanwhile. GUI thread only.
class CommandTexts {
public:
    /// What a row shows of the command; nothing where it does not exist. `second` and `marked` stand behind the text.
    std::optional<host::CommandColumn::Entry> entryOf(Command* command, const Command* second, bool marked) const;

    /// In the language of the moment; nothing where the command does not exist.
    std::optional<PegString> textOf(Command* command) const;

private:
    class Stay;

    Command mAnchor{"", Command::BACK}; ///< the list lock goes with the last command: this one keeps it
};

} // namespace DisplayAPI
