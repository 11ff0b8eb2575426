#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TabScreenPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a tab screen, whatever the panel.
class DISPLAYAPI_EXPORT TabScreenSide : public DisplayablePrivate, public TabScreenPrivateIfc {
public:
    ~TabScreenSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    void addTab(const std::string& title, DisplayablePrivateIfc* page, bool current) override;
    void addTab(TranslationInfo* title, DisplayablePrivateIfc* page, bool current) override;
    int numberOfTabs() override;
    void setCurrentDisplayable(DisplayablePrivateIfc* page) override;
    void setCurrentDisplayableForTabAtIndex(int index, DisplayablePrivateIfc* page) override;
    void removeTab(DisplayablePrivateIfc* page) override;
    void removeTabAtIndex(int index) override;
    void nextTab() override;
    int getCurrentTabIndex() override;
    void setCurrentTabIndex(int index) override;
    void setTitleForTabAtIndex(int index, const std::string& title) override;
    void setTitleForTabAtIndex(int index, TranslationInfo* title) override;
    std::string getTitleForTabAtIndex(int index) override;
    void localeChanged(const std::string& locale) override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;

protected:
    TabScreenSide(TabScreen* owner, TabScreen::IconType icon, bool wayBack, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The tab screen of the 240 x 128 panel and its narrow form. The left key goes back from the leftmost tab.
class DISPLAYAPI_EXPORT TabScreenPrivate : public TabScreenSide {
public:
    /// `owner` is the facade, not owned.
    TabScreenPrivate(TabScreen* owner, TabScreen::IconType icon);
};

/// The tab screen of the 208 x 42 panel: a line for the tabs, and one for the page.
class DISPLAYAPI_EXPORT TabScreenPrivateWP1 : public TabScreenSide {
public:
    /// `owner` is the facade, not owned. `wayBack`: the left key goes back from the leftmost tab.
    TabScreenPrivateWP1(TabScreen* owner, TabScreen::IconType icon, bool wayBack);
};

} // namespace DisplayAPI
