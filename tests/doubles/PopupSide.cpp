#include "doubles/PopupSide.h"

namespace DisplayAPI {

PegThing* PopupSide::getWidget()
{
    return popup().widget;
}

void PopupSide::releaseOwnership()
{
    popup().ownership.releaseOwnership();
}

void PopupSide::gainOwnership()
{
    popup().ownership.gainOwnership();
}

void PopupSide::show()
{
    popup().note("show");
}

void PopupSide::lostFocus() {}

bool PopupSide::hideOldWidgetOnFocusGained()
{
    return false;
}

void PopupSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
}

std::string PopupSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string PopupSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

void PopupSide::setSysWindowSize(int lines)
{
    popup().note("setSysWindowSize", lines);
}

void PopupSide::setSysWindowText(std::string text, int line)
{
    popup().note("setSysWindowText", text, line);
}

bool PopupSide::hasSystemWindow()
{
    popup().note("hasSystemWindow");
    return false;
}

} // namespace DisplayAPI
