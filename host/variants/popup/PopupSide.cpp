#include "variants/popup/PopupSide.h"

#include "DisplayAPI/Rectangles.h"
#include "host/variants/popup/Popup.h"

namespace DisplayAPI {

PegThing* PopupSide::getWidget()
{
    return popup().box.get();
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
    popup().arrived();
}

/// Something else has the user; the time-out runs on.
void PopupSide::lostFocus() {}

bool PopupSide::hideOldWidgetOnFocusGained()
{
    return false; // a popup leaves what is below it on screen
}

void PopupSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
    popup().connected(display != nullptr);
}

std::string PopupSide::serialise()
{
    const PegThing* const box = getWidget();
    return box != nullptr ? serialise({toRect(box->Area())}) : std::string();
}

std::string PopupSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    const PegThing* const box = getWidget();
    return box != nullptr && isVisible(box->Area(), visible) ? popup().asText(visible) : std::string();
}

void PopupSide::setSysWindowSize(int lines)
{
    popup().setStatusLines(lines);
}

void PopupSide::setSysWindowText(std::string text, int line)
{
    if (popup().box != nullptr)
        popup().box->setStatusText(line, std::move(text));
}

/// On two lines the system window pops up instead.
bool PopupSide::hasSystemWindow()
{
    return popup().box != nullptr && !host::hasTwoLines();
}

} // namespace DisplayAPI
