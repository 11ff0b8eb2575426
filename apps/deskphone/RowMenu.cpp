#include "apps/deskphone/RowMenu.h"

#include "apps/deskphone/Telephone.h"

namespace deskphone {

using DisplayAPI::Command;

namespace {

constexpr int FORGOTTEN_AFTER_MS = 30'000;

} // namespace

RowMenu::Entry::Entry(Telephone& telephone, const Action& action)
    : command(new TranslationInfo(action.text, &telephone.languages()), 0), run(action.run)
{
}

RowMenu::RowMenu(Telephone& telephone, const std::vector<Action>& actions)
    : mMenu(HAS_WAY_BACK), mChoice(mMenu, [this](Command* command) { chosen(command); })
{
    mMenu.setBackTranslator(&telephone.languages());
    mMenu.setRightArrowEqualsOK(true);
    mMenu.setAutoHideTimeout(FORGOTTEN_AFTER_MS);
    for (const Action& action : actions)
        mMenu.addCommandWithIcon(&mEntries.emplace_back(telephone, action).command, nullptr, false);
}

void RowMenu::chosen(const Command* command)
{
    for (const Entry& entry : mEntries)
        if (&entry.command == command)
            entry.run();
}

} // namespace deskphone
