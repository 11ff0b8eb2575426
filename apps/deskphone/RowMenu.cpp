#include "apps/deskphone/RowMenu.h"

#include "apps/deskphone/Telephone.h"

#include <utility>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::MenuCommand;

namespace {

constexpr int FORGOTTEN_AFTER_MS = 30'000;

MenuCommand commandFor(Telephone& telephone, const RowMenu::Action& action)
{
    if (action.argument.empty())
        return {new TranslationInfo(action.text, &telephone.languages()), 0};
    return {DisplayAPI::kit::Text(&telephone.languages(), action.text, {[&action] { return action.argument; }}).get(),
            0};
}

} // namespace

RowMenu::Entry::Entry(Telephone& telephone, const Action& action)
    : command(commandFor(telephone, action)), run(action.run)
{
}

RowMenu::RowMenu(Telephone& telephone, const std::vector<Action>& actions)
    : mTelephone(telephone), mMenu(HAS_WAY_BACK), mChoice(mMenu, [this](Command* command) { chosen(command); })
{
    mMenu.setBackTranslator(&telephone.languages());
    mMenu.setRightArrowEqualsOK(true);
    mMenu.setAutoHideTimeout(FORGOTTEN_AFTER_MS);
    setActions(actions);
}

/// The entries that were there may be on the screen until the menu has got the others.
void RowMenu::setActions(const std::vector<Action>& actions)
{
    std::deque<Entry> former = std::exchange(mEntries, {});
    mMenu.clearCommands();
    for (const Action& action : actions)
        mMenu.addCommandWithIcon(&mEntries.emplace_back(mTelephone, action).command, nullptr, false);
}

void RowMenu::chosen(const Command* command)
{
    for (const Entry& entry : mEntries)
        if (&entry.command == command) {
            const std::function<void()> run = entry.run;
            return run();
        }
}

} // namespace deskphone
