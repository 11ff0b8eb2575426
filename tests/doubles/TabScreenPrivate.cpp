#include "variants/tab/TabScreenPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording tab screen. Its widget is a real one, so that a display can show it.
struct TabScreenSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const TabScreenSide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

TabScreenSide::TabScreenSide(TabScreen* owner, TabScreen::IconType icon, bool wayBack, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "TabScreenPrivate" : "TabScreenPrivateWP1"})
{
    const int number = icon;
    if (panel == Panel::FULL)
        doubles::Recorder::instance().note(this, mImpl->name, owner, number);
    else
        doubles::Recorder::instance().note(this, mImpl->name, owner, number, wayBack);
}

TabScreenSide::~TabScreenSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

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
    return mImpl->widget;
}

void TabScreenSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void TabScreenSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void TabScreenSide::show() {}

void TabScreenSide::lostFocus() {}

void TabScreenSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
}

std::string TabScreenSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string TabScreenSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

void TabScreenSide::setSysWindowSize(int) {}

void TabScreenSide::setSysWindowText(std::string, int) {}

bool TabScreenSide::hasSystemWindow()
{
    return false;
}

void TabScreenSide::addTab(const std::string& title, DisplayablePrivateIfc* page, bool current)
{
    mImpl->note("addTab", title, page, current);
}

void TabScreenSide::addTab(TranslationInfo* title, DisplayablePrivateIfc* page, bool current)
{
    mImpl->note("addTab", title, page, current);
}

int TabScreenSide::numberOfTabs()
{
    mImpl->note("numberOfTabs");
    return doubles::Answers::instance().size;
}

void TabScreenSide::setCurrentDisplayable(DisplayablePrivateIfc* page)
{
    mImpl->note("setCurrentDisplayable", page);
}

void TabScreenSide::setCurrentDisplayableForTabAtIndex(int index, DisplayablePrivateIfc* page)
{
    mImpl->note("setCurrentDisplayableForTabAtIndex", index, page);
}

void TabScreenSide::removeTab(DisplayablePrivateIfc* page)
{
    mImpl->note("removeTab", page);
}

void TabScreenSide::removeTabAtIndex(int index)
{
    mImpl->note("removeTabAtIndex", index);
}

void TabScreenSide::nextTab()
{
    mImpl->note("nextTab");
}

int TabScreenSide::getCurrentTabIndex()
{
    mImpl->note("getCurrentTabIndex");
    return doubles::Answers::instance().selectedIndex;
}

void TabScreenSide::setCurrentTabIndex(int index)
{
    mImpl->note("setCurrentTabIndex", index);
}

void TabScreenSide::setTitleForTabAtIndex(int index, const std::string& title)
{
    mImpl->note("setTitleForTabAtIndex", index, title);
}

void TabScreenSide::setTitleForTabAtIndex(int index, TranslationInfo* title)
{
    mImpl->note("setTitleForTabAtIndex", index, title);
}

std::string TabScreenSide::getTitleForTabAtIndex(int index)
{
    mImpl->note("getTitleForTabAtIndex", index);
    return "title";
}

void TabScreenSide::localeChanged(const std::string& locale)
{
    mImpl->note("localeChanged", locale);
}

void TabScreenSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void TabScreenSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

} // namespace DisplayAPI
