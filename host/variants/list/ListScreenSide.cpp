#include "variants/list/ListScreenSide.h"

#include "DisplayAPI/ListBoxText.h"
#include "host/variants/list/ListScreen.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxWithTitle.h"

namespace DisplayAPI {

namespace {

/// The box of the full panel draws the status lines itself; null for the other.
KestrelListBoxWithTitle* statusBox(const ListBoxCore& core)
{
    return dynamic_cast<KestrelListBoxWithTitle*>(core.box());
}

} // namespace

PegThing* ListScreenSide::getWidget()
{
    return screen().core.box();
}

void ListScreenSide::releaseOwnership()
{
    screen().core.followLanguage();
    screen().core.ownership().releaseOwnership();
}

void ListScreenSide::gainOwnership()
{
    screen().core.ownership().gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void ListScreenSide::show()
{
    generateDisplayChangedEvent();
}

void ListScreenSide::lostFocus() {}

std::string ListScreenSide::serialise()
{
    const KestrelListBox* const box = screen().core.box();
    return box != nullptr ? listAsText(*box) : std::string();
}

std::string ListScreenSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    const KestrelListBox* const box = screen().core.box();
    return box != nullptr ? listAsText(*box, visible) : std::string();
}

bool ListScreenSide::hasCaption()
{
    return screen().core.hasTitle();
}

void ListScreenSide::setSysWindowSize(int lines)
{
    if (KestrelListBoxWithTitle* const box = statusBox(screen().core))
        box->setSystemWindowLines(lines);
}

void ListScreenSide::setSysWindowText(std::string text, int line)
{
    if (KestrelListBoxWithTitle* const box = statusBox(screen().core))
        box->setSystemWindowText(ICC::fromUTF8toUNICODE(text), line);
}

/// Two lines have no room for status lines above the title.
bool ListScreenSide::hasSystemWindow()
{
    return statusBox(screen().core) != nullptr;
}

} // namespace DisplayAPI
