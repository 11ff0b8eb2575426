#include "host/variants/menu/CommandTexts.h"

#include "DisplayAPI/MenuCommand.h"
#include "host/variants/menu/CommandIcons.h"
#include "utilities/ICC.h"
#include "utilities/Semaphore.h"

namespace DisplayAPI {

/// While it lives no command goes.
class CommandTexts::Stay {
public:
    Stay() { mLock.take(-1); }
    ~Stay() { mLock.give(); }
    Stay(const Stay&) = delete;
    Stay& operator=(const Stay&) = delete;

private:
    Semaphore& mLock = *Command::commandListMutex();
};

std::optional<host::CommandColumn::Entry> CommandTexts::entryOf(Command* command, const Command* second,
                                                                bool marked) const
{
    const Stay stay;
    const std::optional<PegString> text = textOf(command);
    if (!text)
        return {};
    host::CommandColumn::Entry entry{.text = *text};
    if (const auto* const menuCommand = dynamic_cast<const MenuCommand*>(command))
        entry.icon = host::iconOf(*menuCommand);
    if (second != nullptr)
        entry.mark = &host::icons::SMALL_ARROW_RIGHT;
    else if (marked)
        entry.mark = &host::icons::CHECK;
    return entry;
}

std::optional<PegString> CommandTexts::textOf(Command* command) const
{
    const std::optional<std::string> text = Command::textOf(command);
    if (!text)
        return {};
    return ICC::fromUTF8toUNICODE(*text);
}

} // namespace DisplayAPI
