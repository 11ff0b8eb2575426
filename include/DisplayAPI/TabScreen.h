#pragma once

#include "DisplayAPI/Displayable.h"

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TabScreenPrivateIfc;

/// A screen of tabs, each with a title and a displayable of its own, the page, which has the screen below the tab bar
/// while its tab is the current one.
///
/// Threads: safe from any thread. Off the GUI thread cleanup(), removeCommandListener(), the destructor and everything
/// that answers wait; everything else posts and returns at once. Calls from one thread keep their order.
/// Ownership: a tab screen owns its GUI-thread side. Pages, listeners and translations are not owned. A page that is
/// deleted leaves its tab empty, if its class deletes its GUI-thread side on the GUI thread as all of this library do.
/// A page that dismisses itself gives the keys to the tab bar; it is shown again when its tab is next chosen. Put a
/// page into one tab, and on no display's stack of its own. A translation has to live while its tab is there; null is
/// an empty text.
class DISPLAYAPI_EXPORT TabScreen : public Displayable {
public:
    /// What the tabs have in common: the picture that the tab bar begins with.
    enum IconType : int { NO_ICON = 0, CALLS = 1, PERSONS = 2, MESSAGES = 3, HOME = 4, PICTURES = 5 };

    /// `wayBack`: on the 208 x 42 panel, whether the left key goes back from the leftmost tab. On the other panels it
    /// always does. A number that is no icon shows none.
    TabScreen(IconType icon, bool wayBack);

    /// Adopts a GUI-thread side made elsewhere; null makes the panel's own, without a way back.
    TabScreen(IconType icon, TabScreenPrivateIfc* implementation);

    TabScreen(const TabScreen&) = delete;
    TabScreen& operator=(const TabScreen&) = delete;
    ~TabScreen() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Takes it off its display, deletes its GUI-thread side and forgets the tabs; the destructor sees to it.
    void cleanup();

    /// Appends a tab; the first one becomes the current one, and so does one that is to be (`current`). A null page
    /// leaves the tab empty. Texts are UTF-8.
    void addTab(const std::string& title, Displayable* page, bool current);
    void addTab(TranslationInfo* title, Displayable* page, bool current);

    int numberOfTabs();

    /// The page of the current tab; null where that is empty, or where there is no tab.
    Displayable* currentTab();

    /// Puts another page into a tab; null empties it. A tab that is not there is ignored.
    void setCurrentDisplayable(Displayable* page);
    void setCurrentDisplayableForTabAtIndex(int index, Displayable* page);

    /// Takes out the first tab with that page; ignored where there is none. The page stays the application's. The next
    /// tab becomes the current one where that has gone, or the last one.
    void removeTab(Displayable* page);
    void removeTabAtIndex(int index);

    /// Makes the next tab the current one; after the last one comes the first.
    void nextTab();

    /// These do nothing: the user moves between tab bar and page.
    void previousTab();
    void leaveTabBar();
    void enterTabBar();

    /// -1 where there is no tab.
    int getCurrentTabIndex();

    /// A tab that is not there is ignored.
    void setCurrentTabIndex(int index);

    void setTitleForTabAtIndex(int index, const std::string& title);
    void setTitleForTabAtIndex(int index, TranslationInfo* title);

    /// In the language of the moment; empty past the end.
    std::string getTitleForTabAtIndex(int index);

    /// Null past the end; the first one's where the index is negative.
    Displayable* getDisplayableForTabAtIndex(int index);

    /// The first tab with that page; -1 where there is none.
    int getIndexForTab(Displayable* page);

    /// Hands the locale to the GUI-thread side. Call it on the GUI thread.
    void localeChanged(std::string locale);

    /// Adds a listener once. It hears what the user does in the tab bar: TABFWD_COMMAND() and TABBACK_COMMAND() when
    /// the current tab is another one, OK() when the user enters the page, BACK_COMMAND() when the left key is to go
    /// back. Null is ignored. Not owned: it has to live until removeCommandListener() has returned, or outlive the tab
    /// screen.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// One object each per process, recognised by its address.
    static Command* TABFWD_COMMAND();
    static Command* TABBACK_COMMAND();
    static Command* OK();
    static Command* BACK_COMMAND();

private:
    friend class Displayable;
    struct Ops;

    /// For a page whose GUI-thread side is about to go. GUI thread only.
    static void forgetEverywhere(Displayable* page);
    static std::vector<TabScreen*>& living();

    void create(IconType icon, bool wayBack, TabScreenPrivateIfc* implementation);
    void destroy();
    void keep(Displayable* page);
    void appendTab(const std::string& title, Displayable* page, bool current);
    void appendTranslatedTab(TranslationInfo* title, Displayable* page, bool current);
    int countTabs();
    int currentIndex();
    Displayable* currentPage();
    void setPage(Displayable* page);
    void setPageAt(int index, Displayable* page);
    void remove(Displayable* page);
    void removeAt(int index);
    Displayable* pageAt(int index);
    int indexOf(Displayable* page);
    bool hasTab(int index) const;
    void replace(int index, Displayable* page);
    void forget(Displayable* page);

    TabScreenPrivateIfc* mImplementation = nullptr;
    std::vector<Displayable*> mDisplayableItems;
};

} // namespace DisplayAPI
