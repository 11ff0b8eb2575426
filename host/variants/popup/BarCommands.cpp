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
    if (mBox == nullptr || !label)
        return false;
    mCommands.push_back(command);
    mBox->bar().append(std::move(*label));
    if (command == mDefault && !mUserHasMoved)
        selectDefault();
    mBox->fitField();
    return true;
}

bool BarCommands::remove(Command* command)
{
    const auto found = std::ranges::find(mCommands, command);
    if (mBox == nullptr || found == mCommands.end())
        return false;
    mBox->bar().remove(static_cast<int>(found - mCommands.begin()));
    mCommands.erase(found);
    mBox->fitField();
    return true;
}

void BarCommands::clear()
{
    mCommands.clear();
    mDefault = nullptr;
    mUserHasMoved = false;
    if (mBox != nullptr)
        mBox->setCommands({});
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
    if (mBox == nullptr)
        return;
    const auto found = std::ranges::find(mCommands, mDefault);
    mBox->bar().setCurrent(found != mCommands.end() ? static_cast<int>(found - mCommands.begin()) : 0);
}

int BarCommands::selected() const
{
    return mBox != nullptr ? mBox->bar().current() : -1;
}

Command* BarCommands::at(int place) const
{
    Command* const command = mCommands.at(static_cast<std::size_t>(place));
    return Command::exists(command) ? command : nullptr;
}

void BarCommands::translate()
{
    if (mBox == nullptr)
        return;
    for (std::size_t i = 0; i < mCommands.size(); ++i)
        if (auto label = mTexts.textOf(mCommands[i]))
            mBox->bar().setText(static_cast<int>(i), std::move(*label));
}

std::string BarCommands::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string text;
    for (const host::CommandBar::Cell& cell : mBox->bar().cells())
        if (isVisible(cell.area, visible))
            text += screen::subItem("MenuCommand",
                                    screen::textLine(0, ICC::fromUNICODEtoUTF8(mBox->bar().text(cell.command))));
    return text;
}

} // namespace DisplayAPI
