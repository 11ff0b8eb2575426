#include "apps/deskphone/Choice.h"

#include "DisplayAPI/ExclusiveList.h"

namespace deskphone {

Choice::Choice(DisplayAPI::Display& display, Screen* parent, const std::string& title, std::vector<std::string> values)
    : Screen(display, parent, title, std::make_unique<DisplayAPI::ExclusiveList>()), mTitle(title),
      mValues(std::move(values))
{
}

std::string Choice::summary() const
{
    return mTitle + ": " + mValues[mChosen];
}

void Choice::build()
{
    for (const std::string& value : mValues)
        list().append(value);
}

void Choice::chosen(int row)
{
    mChosen = static_cast<std::size_t>(row);
    mListener();
    parent()->open();
}

void Choice::left()
{
    list().setSelectedIndex(static_cast<int>(mChosen));
}

} // namespace deskphone
