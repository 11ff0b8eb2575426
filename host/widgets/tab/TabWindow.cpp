#include "host/widgets/tab/TabWindow.h"

#include "host/lcd/Geometry.h"
#include "presentation/PRESCPresentationManager.h"
#include "widgets/KestrelListBox.h"

#include <utility>

namespace host {

namespace {

constexpr int LEAST_PAGE = 40; ///< a title and a row

} // namespace

TabWindow::TabWindow(const Icon* icon, bool leftGoesBack)
    : PegWindow(FF_NONE), mStatus(new StatusStrip([this] { layOut(); })), mBar(new TabBar(icon, leftGoesBack))
{
    Add(mStatus, false);
    Add(mBar, false);
    const auto [width, height] = runningPanel();
    Resize(rectAt(0, 0, width, height));
    showPlace();
}

void TabWindow::Resize(const PegRect& area)
{
    PegWindow::Resize(area);
    layOut();
}

void TabWindow::layOut()
{
    const PegRect& all = Area();
    mStatus->setRoom(heightOf(all) - TabBar::height() - LEAST_PAGE);
    mStatus->Resize(rectAt(all.left, all.top, widthOf(all), mStatus->height()));
    mBar->Resize(rectAt(all.left, all.top + mStatus->height(), widthOf(all), TabBar::height()));
    if (mPage != nullptr)
        mPage->Resize(pageArea());
}

PegRect TabWindow::pageArea() const
{
    const PegRect& all = Area();
    return {all.left, static_cast<std::int16_t>(mBar->Area().bottom + 1), all.right, all.bottom};
}

void TabWindow::setPage(PegThing* page)
{
    Remove(mPage);
    if (page == nullptr)
        return;
    mPage = page;
    mFormerArea = page->Area();
    page->Resize(pageArea());
    Add(page);
    showPlace();
}

/// A page that has left may have had the focus, and gets what it had elsewhere.
void TabWindow::ChildRemoved(PegThing* child)
{
    if (child != mPage)
        return;
    mPage = nullptr;
    if (auto* const list = dynamic_cast<KestrelListBox*>(child))
        list->setActive(true);
    child->Resize(mFormerArea);
    Invalidate(pageArea());
    showPlace();
    placeFocus();
}

void TabWindow::setPlace(Place place)
{
    mPlace = place;
    showPlace();
    placeFocus();
}

void TabWindow::showPlace()
{
    mBar->setFocus(place() == BAR);
    if (auto* const list = dynamic_cast<KestrelListBox*>(mPage))
        list->setActive(place() == PAGE);
}

void TabWindow::placeFocus()
{
    if (!StatusIs(PSF_VISIBLE) || (gpPresent->Focus() != nullptr && !StatusIs(PSF_CURRENT)))
        return;
    if (place() == BAR)
        gpPresent->MoveFocusTree(this);
    else if (!mPage->StatusIs(PSF_CURRENT))
        gpPresent->MoveFocusTree(mPage);
}

/// Keys come here from the page as well, when it has no use for them.
int TabWindow::Message(const PegMessage& message)
{
    if (message.wType == PM_KEY && key(message.iData))
        return 0;
    return PegWindow::Message(message);
}

bool TabWindow::key(int key)
{
    if (place() == BAR)
        return mBar->key(key);
    if (key == PK_LEFT || key == PK_RIGHT)
        return mBar->key(key);
    if (key != PK_UP)
        return false;
    setPlace(BAR);
    return true;
}

} // namespace host
