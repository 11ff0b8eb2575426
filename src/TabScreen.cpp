#include "DisplayAPI/TabScreen.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TabScreenPrivateIfc.h"
#include "GuiThread.h"
#include "Log.h"
#include "Operations.h"
#include "Survival.h"
#include "Variant.h"
#include "variants/tab/TabScreenPrivate.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::TabScreen", "./src/TabScreen"};

enum Request {
    CREATE = 0,
    CLEANUP = 1,
    ADD_TAB = 2,
    ADD_TRANSLATED_TAB = 3,
    NUMBER_OF_TABS = 4,
    CURRENT_TAB = 5,
    SET_CURRENT_DISPLAYABLE = 6,
    SET_DISPLAYABLE_AT = 7,
    REMOVE_TAB = 8,
    REMOVE_TAB_AT = 9,
    NEXT_TAB = 10,
    GET_CURRENT_INDEX = 11,
    SET_CURRENT_INDEX = 12,
    SET_TITLE_AT = 13,
    SET_TRANSLATED_TITLE_AT = 14,
    GET_TITLE_AT = 15,
    GET_DISPLAYABLE_AT = 16,
    GET_INDEX = 17,
    ADD_COMMAND_LISTENER = 18,
    REMOVE_COMMAND_LISTENER = 19
};

using Ifc = TabScreenPrivateIfc;

DisplayablePrivateIfc* sideOf(Displayable* page)
{
    return page != nullptr ? page->getPrivateImpl() : nullptr;
}

} // namespace

struct TabScreen::Ops
    : Operations<Posts<CREATE, &TabScreen::create>, Waits<CLEANUP, &TabScreen::destroy>,
                 Posts<ADD_TAB, &TabScreen::appendTab>, Posts<ADD_TRANSLATED_TAB, &TabScreen::appendTranslatedTab>,
                 Waits<NUMBER_OF_TABS, &TabScreen::countTabs>, Waits<CURRENT_TAB, &TabScreen::currentPage>,
                 Posts<SET_CURRENT_DISPLAYABLE, &TabScreen::setPage>, Posts<SET_DISPLAYABLE_AT, &TabScreen::setPageAt>,
                 Posts<REMOVE_TAB, &TabScreen::remove>, Posts<REMOVE_TAB_AT, &TabScreen::removeAt>,
                 Posts<NEXT_TAB, &Ifc::nextTab>, Waits<GET_CURRENT_INDEX, &Ifc::getCurrentTabIndex, -1>,
                 Posts<SET_CURRENT_INDEX, &Ifc::setCurrentTabIndex>,
                 Posts<SET_TITLE_AT, taking<int, const std::string&>(&Ifc::setTitleForTabAtIndex)>,
                 Posts<SET_TRANSLATED_TITLE_AT, taking<int, TranslationInfo*>(&Ifc::setTitleForTabAtIndex)>,
                 Waits<GET_TITLE_AT, &Ifc::getTitleForTabAtIndex>, Waits<GET_DISPLAYABLE_AT, &TabScreen::pageAt>,
                 Waits<GET_INDEX, &TabScreen::indexOf, -1>, Posts<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
                 Waits<REMOVE_COMMAND_LISTENER, &Ifc::removeCommandListener>> {};

TabScreen::TabScreen(IconType icon, bool wayBack)
{
    Ops::call<CREATE>(*this, mImplementation, icon, wayBack, static_cast<Ifc*>(nullptr));
}

TabScreen::TabScreen(IconType icon, TabScreenPrivateIfc* implementation)
{
    Ops::call<CREATE>(*this, mImplementation, icon, false, implementation);
}

TabScreen::~TabScreen()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

/// The tab screens that pages have been put into. Never destroyed: a static one leaves it as late as at process exit.
std::vector<TabScreen*>& TabScreen::living()
{
    static auto* const screens = new std::vector<TabScreen*>;
    return *screens;
}

void TabScreen::create(IconType icon, bool wayBack, TabScreenPrivateIfc* implementation)
{
    name = "TabScreen";
    if (implementation != nullptr)
        mImplementation = implementation;
    else if (isFullPanel())
        mImplementation = new TabScreenPrivate(this, icon);
    else
        mImplementation = new TabScreenPrivateWP1(this, icon, wayBack);
}

void TabScreen::destroy()
{
    std::erase(living(), this);
    if (deletePrivateSide(mImplementation))
        mDisplayableItems.clear();
}

/// Whoever hears of an empty tab may delete tab screens.
void TabScreen::forgetEverywhere(Displayable* page)
{
    const auto holder = [page]() -> TabScreen* {
        const auto found = std::ranges::find_if(living(), [=](TabScreen* each) { return each->indexOf(page) >= 0; });
        return found != living().end() ? *found : nullptr;
    };
    while (TabScreen* const screen = holder())
        screen->forget(page);
}

/// Its tab is empty before anybody hears of it: each page is forgotten once.
void TabScreen::forget(Displayable* page)
{
    const int index = indexOf(page);
    replace(index, nullptr);
    if (mImplementation != nullptr)
        mImplementation->setCurrentDisplayableForTabAtIndex(index, nullptr);
}

void TabScreen::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* TabScreen::getPrivateImpl()
{
    return mImplementation;
}

void TabScreen::cleanup()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

void TabScreen::addTab(const std::string& title, Displayable* page, bool current)
{
    Ops::call<ADD_TAB>(*this, mImplementation, title, page, current);
}

void TabScreen::addTab(TranslationInfo* title, Displayable* page, bool current)
{
    Ops::call<ADD_TRANSLATED_TAB>(*this, mImplementation, title, page, current);
}

int TabScreen::numberOfTabs()
{
    return Ops::call<NUMBER_OF_TABS>(*this, mImplementation);
}

Displayable* TabScreen::currentTab()
{
    return Ops::call<CURRENT_TAB>(*this, mImplementation);
}

void TabScreen::setCurrentDisplayable(Displayable* page)
{
    Ops::call<SET_CURRENT_DISPLAYABLE>(*this, mImplementation, page);
}

void TabScreen::setCurrentDisplayableForTabAtIndex(int index, Displayable* page)
{
    Ops::call<SET_DISPLAYABLE_AT>(*this, mImplementation, index, page);
}

void TabScreen::removeTab(Displayable* page)
{
    Ops::call<REMOVE_TAB>(*this, mImplementation, page);
}

void TabScreen::removeTabAtIndex(int index)
{
    Ops::call<REMOVE_TAB_AT>(*this, mImplementation, index);
}

void TabScreen::nextTab()
{
    Ops::call<NEXT_TAB>(*this, mImplementation);
}

void TabScreen::previousTab() {}

void TabScreen::leaveTabBar() {}

void TabScreen::enterTabBar() {}

int TabScreen::getCurrentTabIndex()
{
    return Ops::call<GET_CURRENT_INDEX>(*this, mImplementation);
}

void TabScreen::setCurrentTabIndex(int index)
{
    Ops::call<SET_CURRENT_INDEX>(*this, mImplementation, index);
}

void TabScreen::setTitleForTabAtIndex(int index, const std::string& title)
{
    Ops::call<SET_TITLE_AT>(*this, mImplementation, index, title);
}

void TabScreen::setTitleForTabAtIndex(int index, TranslationInfo* title)
{
    Ops::call<SET_TRANSLATED_TITLE_AT>(*this, mImplementation, index, title);
}

std::string TabScreen::getTitleForTabAtIndex(int index)
{
    return Ops::call<GET_TITLE_AT>(*this, mImplementation, index);
}

Displayable* TabScreen::getDisplayableForTabAtIndex(int index)
{
    return Ops::call<GET_DISPLAYABLE_AT>(*this, mImplementation, index);
}

int TabScreen::getIndexForTab(Displayable* page)
{
    return Ops::call<GET_INDEX>(*this, mImplementation, page);
}

void TabScreen::localeChanged(std::string locale)
{
    onlyOnGuiThread("TabScreen::localeChanged()");
    if (mImplementation != nullptr)
        mImplementation->localeChanged(locale);
}

void TabScreen::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void TabScreen::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

/// Also after cleanup(), which has taken the screen off the list: a page that goes must not stay behind.
void TabScreen::keep(Displayable* page)
{
    if (std::ranges::find(living(), this) == living().end())
        living().push_back(this);
    mDisplayableItems.push_back(page);
}

void TabScreen::appendTab(const std::string& title, Displayable* page, bool current)
{
    keep(page);
    if (mImplementation != nullptr)
        mImplementation->addTab(title, sideOf(page), current);
}

void TabScreen::appendTranslatedTab(TranslationInfo* title, Displayable* page, bool current)
{
    keep(page);
    if (mImplementation != nullptr)
        mImplementation->addTab(title, sideOf(page), current);
}

int TabScreen::countTabs()
{
    const int count = static_cast<int>(mDisplayableItems.size());
    if (mImplementation != nullptr && mImplementation->numberOfTabs() != count)
        gLog(LOST, 182, "TabScreen - number of tabs is NOT equal to the size of the mDisplayableItems list");
    return count;
}

bool TabScreen::hasTab(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < mDisplayableItems.size();
}

int TabScreen::currentIndex()
{
    return mImplementation != nullptr ? mImplementation->getCurrentTabIndex() : -1;
}

Displayable* TabScreen::currentPage()
{
    const int index = currentIndex();
    return hasTab(index) ? pageAt(index) : nullptr;
}

void TabScreen::setPage(Displayable* page)
{
    if (mImplementation == nullptr)
        return;
    const Survival survival(this);
    mImplementation->setCurrentDisplayable(sideOf(page));
    if (survival)
        replace(currentIndex(), page);
}

void TabScreen::setPageAt(int index, Displayable* page)
{
    const Survival survival(this);
    if (mImplementation != nullptr)
        mImplementation->setCurrentDisplayableForTabAtIndex(index, sideOf(page));
    if (survival)
        replace(index, page);
}

void TabScreen::replace(int index, Displayable* page)
{
    if (hasTab(index))
        mDisplayableItems[static_cast<std::size_t>(index)] = page;
}

/// By its side alone a page without one cannot be told from an empty tab: the implementation ignores it and is told the
/// tab instead.
void TabScreen::remove(Displayable* page)
{
    const int index = indexOf(page);
    if (hasTab(index))
        mDisplayableItems.erase(mDisplayableItems.begin() + index);
    if (mImplementation == nullptr)
        return;
    DisplayablePrivateIfc* const side = sideOf(page);
    mImplementation->removeTab(side);
    if (index >= 0 && side == nullptr)
        mImplementation->removeTabAtIndex(index);
}

void TabScreen::removeAt(int index)
{
    if (!hasTab(index))
        return;
    mDisplayableItems.erase(mDisplayableItems.begin() + index);
    if (mImplementation != nullptr)
        mImplementation->removeTabAtIndex(index);
}

/// A negative index is the first tab's.
Displayable* TabScreen::pageAt(int index)
{
    const int position = std::max(index, 0);
    return hasTab(position) ? mDisplayableItems[static_cast<std::size_t>(position)] : nullptr;
}

int TabScreen::indexOf(Displayable* page)
{
    const auto found = std::ranges::find(mDisplayableItems, page);
    return found != mDisplayableItems.end() ? static_cast<int>(found - mDisplayableItems.begin()) : -1;
}

Command* TabScreen::TABFWD_COMMAND()
{
    static Command command("", Command::TABFWD);
    return &command;
}

Command* TabScreen::TABBACK_COMMAND()
{
    static Command command("", Command::TABBACK);
    return &command;
}

Command* TabScreen::OK()
{
    static Command command("", Command::OK);
    return &command;
}

Command* TabScreen::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

} // namespace DisplayAPI
