#include "variants/tab/TabScreenPrivate.h"

#include "DisplayAPI/Rectangles.h"
#include "host/variants/tab/TabScreenImpl.h"

#include <algorithm>

namespace DisplayAPI {

TabScreenSide::TabScreenSide(TabScreen* owner, TabScreen::IconType icon, bool wayBack, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, icon, wayBack || panel == Panel::FULL, panel))
{
}

TabScreenSide::~TabScreenSide() = default;

TabScreenPrivate::TabScreenPrivate(TabScreen* owner, TabScreen::IconType icon)
    : TabScreenSide(owner, icon, true, Panel::FULL)
{
}

TabScreenPrivateWP1::TabScreenPrivateWP1(TabScreen* owner, TabScreen::IconType icon, bool wayBack)
    : TabScreenSide(owner, icon, wayBack, Panel::SMALL)
{
}

PegThing* TabScreenSide::getWidget()
{
    return mImpl->window.get();
}

void TabScreenSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void TabScreenSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Also when what lay above has gone: the focus is the window's then, and an observer learns of it here.
void TabScreenSide::show()
{
    if (mImpl->shown())
        generateDisplayChangedEvent();
}

void TabScreenSide::lostFocus()
{
    mImpl->pageLostFocus();
}

void TabScreenSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
    mImpl->connectPage(display);
}

std::string TabScreenSide::serialise()
{
    return mImpl->asText();
}

std::string TabScreenSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void TabScreenSide::setSysWindowSize(int lines)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setLines(lines);
}

void TabScreenSide::setSysWindowText(std::string text, int line)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setText(line, std::move(text));
}

/// Two lines have no room for status lines beside bar and page: there the system window pops up above them.
bool TabScreenSide::hasSystemWindow()
{
    return mImpl->panel == Panel::FULL;
}

void TabScreenSide::addTab(const std::string& title, DisplayablePrivateIfc* page, bool current)
{
    mImpl->add(TranslatedText(title), page, current);
}

void TabScreenSide::addTab(TranslationInfo* title, DisplayablePrivateIfc* page, bool current)
{
    mImpl->add(TranslatedText(title), page, current);
}

int TabScreenSide::numberOfTabs()
{
    return mImpl->size();
}

void TabScreenSide::setCurrentDisplayable(DisplayablePrivateIfc* page)
{
    mImpl->setPage(mImpl->current, page);
}

void TabScreenSide::setCurrentDisplayableForTabAtIndex(int index, DisplayablePrivateIfc* page)
{
    mImpl->setPage(index, page);
}

void TabScreenSide::removeTab(DisplayablePrivateIfc* page)
{
    if (page == nullptr)
        return;
    const auto found = std::ranges::find(mImpl->tabs, page, &Impl::Tab::page);
    if (found != mImpl->tabs.end())
        mImpl->remove(static_cast<int>(found - mImpl->tabs.begin()));
}

void TabScreenSide::removeTabAtIndex(int index)
{
    mImpl->remove(index);
}

void TabScreenSide::nextTab()
{
    if (mImpl->size() > 0)
        mImpl->choose((mImpl->current + 1) % mImpl->size());
}

int TabScreenSide::getCurrentTabIndex()
{
    return mImpl->current;
}

void TabScreenSide::setCurrentTabIndex(int index)
{
    mImpl->choose(index);
}

void TabScreenSide::setTitleForTabAtIndex(int index, const std::string& title)
{
    mImpl->setTitle(index, TranslatedText(title));
}

void TabScreenSide::setTitleForTabAtIndex(int index, TranslationInfo* title)
{
    mImpl->setTitle(index, TranslatedText(title));
}

std::string TabScreenSide::getTitleForTabAtIndex(int index)
{
    return mImpl->titleOf(index);
}

/// The window follows the application's language by itself; this is for a locale that only this screen is told.
void TabScreenSide::localeChanged(const std::string&)
{
    mImpl->showTitles();
}

void TabScreenSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void TabScreenSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

} // namespace DisplayAPI
