#include "host/variants/tab/TabScreenImpl.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/lcd/Geometry.h"
#include "host/variants/StatusText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace DisplayAPI {

namespace {

const host::Icon* pictureOf(TabScreen::IconType icon)
{
    using namespace host;
    static constexpr std::array PICTURES{&icons::HANDSET, &icons::PERSON, &icons::LETTER, &icons::HOUSE,
                                         &icons::PICTURE};
    const auto place = static_cast<std::size_t>(icon) - 1;
    return place < PICTURES.size() ? PICTURES[place] : nullptr;
}

} // namespace

TabScreenSide::Impl::Impl(TabScreenSide& screen, TabScreen* facade, TabScreen::IconType icon, bool leftGoesBack,
                          Panel panelOfScreen)
    : self(screen), owner(facade), panel(panelOfScreen),
      window(std::in_place_type<host::TabWindow>, pictureOf(icon), leftGoesBack)
{
    window->setMessageTarget(this);
}

/// The window may live on, the page's widget is the page's again.
TabScreenSide::Impl::~Impl()
{
    takePageOut();
    if (window != nullptr)
        window->setMessageTarget(nullptr);
}

int TabScreenSide::Impl::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: moveTo(message.iData); break;
    case PM_CLICKED: enter(); break;
    case PM_LEFT: self.postCommand(TabScreen::BACK_COMMAND(), owner); break;
    case PM_APPLICATION_CHANGED: showTitles(); break;
    default: return PegThing::Message(message);
    }
    return 0;
}

/// The user has chosen the tab in the bar.
void TabScreenSide::Impl::moveTo(int tab)
{
    const bool forward = tab > current;
    if (!choose(tab))
        return;
    self.postCommand(forward ? TabScreen::TABFWD_COMMAND() : TabScreen::TABBACK_COMMAND(), owner);
}

/// A page hands the focus on to its field when it is shown.
void TabScreenSide::Impl::enter()
{
    if (!isPageIn() && !putPageIn())
        return;
    window->setPlace(host::TabWindow::PAGE);
    if (window->place() == host::TabWindow::PAGE && !showPage())
        return;
    self.postCommand(TabScreen::OK(), owner);
}

void TabScreenSide::Impl::add(TranslatedText title, DisplayablePrivateIfc* page, bool makeCurrent)
{
    if (window != nullptr)
        window->bar().append(title.shown());
    tabs.push_back({std::move(title), page});
    if ((makeCurrent || current < 0) && !choose(size() - 1))
        return;
    changed();
}

/// What moves into the place of the current one takes its part.
void TabScreenSide::Impl::remove(int tab)
{
    if (!isTab(tab))
        return;
    const bool wasCurrent = tab == current;
    if (wasCurrent && !takePageOut())
        return;
    tabs.erase(tabs.begin() + tab);
    if (window != nullptr)
        window->bar().remove(tab);
    if (tab < current || current == size())
        --current;
    if (wasCurrent && !putPageIn())
        return;
    changed();
}

bool TabScreenSide::Impl::choose(int tab)
{
    if (!isTab(tab))
        return true;
    if (tab != current && !takePageOut())
        return false;
    current = tab;
    if (!isPageIn() && !putPageIn())
        return false;
    return changed();
}

void TabScreenSide::Impl::setPage(int tab, DisplayablePrivateIfc* page)
{
    if (!isTab(tab))
        return;
    if (tab == current && !takePageOut())
        return;
    tabs[static_cast<std::size_t>(tab)].page = page;
    if (tab == current && !putPageIn())
        return;
    changed();
}

void TabScreenSide::Impl::setTitle(int tab, TranslatedText title)
{
    if (!isTab(tab))
        return;
    if (window != nullptr)
        window->bar().setTitle(tab, title.shown());
    tabs[static_cast<std::size_t>(tab)].title = std::move(title);
    changed();
}

/// In the language of the moment.
void TabScreenSide::Impl::showTitles()
{
    if (window == nullptr)
        return;
    for (int tab = 0; tab < size(); ++tab)
        window->bar().setTitle(tab, tabs[static_cast<std::size_t>(tab)].title.shown());
    changed();
}

std::string TabScreenSide::Impl::titleOf(int tab) const
{
    return isTab(tab) ? tabs[static_cast<std::size_t>(tab)].title.text() : std::string();
}

DisplayablePrivateIfc* TabScreenSide::Impl::currentPage() const
{
    return isTab(current) ? tabs[static_cast<std::size_t>(current)].page : nullptr;
}

/// It has left where it has dismissed itself, or is shown elsewhere.
bool TabScreenSide::Impl::isPageIn() const
{
    DisplayablePrivateIfc* const page = currentPage();
    return window != nullptr && page != nullptr && window->page() != nullptr && window->page() == page->getWidget();
}

/// While nobody sees the tab screen, its page may be on the screen by itself.
bool TabScreenSide::Impl::putPageIn()
{
    if (window == nullptr)
        return true;
    window->bar().setCurrent(current);
    if (!isOnScreen() && self.display() == nullptr)
        return true;
    DisplayablePrivateIfc* const page = currentPage();
    PegThing* const widget = page != nullptr ? page->getWidget() : nullptr;
    if (widget == nullptr) {
        window->placeFocus();
        return true;
    }
    page->connectDisplayChangedSignal(self.display());
    window->setPage(widget);
    page->releaseOwnership();
    return showPage();
}

bool TabScreenSide::Impl::takePageOut()
{
    if (!isPageIn())
        return true;
    const std::weak_ptr<void> life = mLife;
    if (isOnScreen())
        currentPage()->lostFocus();
    if (life.expired())
        return false;
    if (!isPageIn())
        return true;
    DisplayablePrivateIfc* const page = currentPage();
    page->connectDisplayChangedSignal(nullptr);
    page->gainOwnership();
    if (isPageIn())
        window->setPage(nullptr);
    return true;
}

/// A page takes the focus where it is shown, and would do so from the bar.
bool TabScreenSide::Impl::showPage()
{
    if (!isOnScreen())
        return true;
    const std::weak_ptr<void> life = mLife;
    window->placeFocus();
    currentPage()->show();
    if (life.expired())
        return false;
    if (window != nullptr && window->place() == host::TabWindow::BAR)
        window->placeFocus();
    return true;
}

void TabScreenSide::Impl::connectPage(DisplayPrivateIfc* display)
{
    if (isPageIn())
        currentPage()->connectDisplayChangedSignal(display);
}

void TabScreenSide::Impl::pageLostFocus()
{
    if (isPageIn())
        currentPage()->lostFocus();
}

bool TabScreenSide::Impl::shown()
{
    return (isPageIn() ? showPage() : putPageIn()) && changed();
}

bool TabScreenSide::Impl::changed()
{
    const std::weak_ptr<void> life = mLife;
    if (isOnScreen())
        self.generateDisplayChangedEvent();
    return !life.expired();
}

std::string TabScreenSide::Impl::asText() const
{
    if (window == nullptr)
        return {};
    return barAsText({toRect(window->Area())}) + (isPageIn() ? currentPage()->serialise() : std::string());
}

std::string TabScreenSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (window == nullptr || !isVisible(window->Area(), visible))
        return {};
    return barAsText(visible) + (isPageIn() ? currentPage()->serialise(visible) : std::string());
}

std::string TabScreenSide::Impl::barAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string contents;
    if (isTab(current))
        contents += screen::caption(titleOf(current));
    contents += statusAsText(window->status(), visible);
    for (int tab = 0; tab < size(); ++tab) {
        const PegRect area = window->bar().tabArea(tab);
        if (!host::isEmpty(area) && isVisible(area, visible))
            contents += screen::subItem("Tab", screen::textLine(0, titleOf(tab)));
    }
    return screen::object("TabScreen", contents);
}

} // namespace DisplayAPI
