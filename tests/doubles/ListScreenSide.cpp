#include "doubles/ListScreen.h"

namespace DisplayAPI {

PegThing* ListScreenSide::getWidget()
{
    return screen().widget;
}

void ListScreenSide::releaseOwnership()
{
    screen().ownership.releaseOwnership();
}

void ListScreenSide::gainOwnership()
{
    screen().ownership.gainOwnership();
}

void ListScreenSide::show()
{
    screen().note("show");
}

void ListScreenSide::lostFocus() {}

std::string ListScreenSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string ListScreenSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

bool ListScreenSide::hasCaption()
{
    return false;
}

void ListScreenSide::setSysWindowSize(int) {}

void ListScreenSide::setSysWindowText(std::string, int) {}

bool ListScreenSide::hasSystemWindow()
{
    return false;
}

} // namespace DisplayAPI
