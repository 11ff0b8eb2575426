#include "host/variants/popup/BarCommands.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/ICC.h"

#include <algorithm>

namespace DisplayAPI {

bool BarCommands::add(Command* command)
{
    auto label = mTexts.textOf(command);
    host::CommandBar* const bar = mBar();
    if (bar == nullptr || !label)
        return false;
    mCommands.push_back(command);
    bar->append(std::move(*label));
    if (command == mDefault && !mUserHasMoved)
        selectDefault();
    mFit();
    return true;
}

bool BarCommands::remove(Command* command)
{
    const auto found = std::ranges::find(mCommands, command);
    host::CommandBar* const bar = mBar();
    if (bar == nullptr || found == mCommands.end())
        return false;
    bar->remove(static_cast<int>(found - mCommands.begin()));
    mCommands.erase(found);
    mFit();
    return true;
}

void BarCommands::clear()
{
    mCommands.clear();
    mDefault = nullptr;
    mUserHasMoved = false;
    host::CommandBar* const bar = mBar();
    if (bar == nullptr)
        return;
    bar->setCommands({});
    mFit();
}

void BarCommands::setDefault(Command* command)
{
    mDefault = command;
    if (!mUserHasMoved)
        selectDefault();
}

void BarCommands::begin()
{
    mUserHasMoved = false;
    selectDefault();
}

void BarCommands::selectDefault()
{
    const auto found = std::ranges::find(mCommands, mDefault);
    if (host::CommandBar* const bar = mBar())
        bar->setCurrent(found != mCommands.end() ? static_cast<int>(found - mCommands.begin()) : 0);
}

int BarCommands::selected() const
{
    const host::CommandBar* const bar = mBar();
    return bar != nullptr ? bar->current() : -1;
}

Command* BarCommands::at(int place) const
{
    Command* const command = mCommands.at(static_cast<std::size_t>(place));
    return Command::exists(command) ? command : nullptr;
}

void BarCommands::translate()
{
    host::CommandBar* const bar = mBar();
    if (bar == nullptr)
        return;
    for (std::size_t i = 0; i < mCommands.size(); ++i)
        if (auto label = mTexts.textOf(mCommands[i]))
            bar->setText(static_cast<int>(i), std::move(*label));
}

std::string BarCommands::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string text;
    const host::CommandBar& bar = *mBar();
    for (const host::CommandBar::Cell& cell : bar.cells())
        if (isVisible(cell.area, visible))
            text += screen::subItem("MenuCommand", screen::textLine(0, ICC::fromUNICODEtoUTF8(bar.text(cell.command))));
    return text;
}

} // namespace DisplayAPI
