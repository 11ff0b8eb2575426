#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/tab/TabWindow.h"
#include "variants/tab/TabScreenPrivate.h"
#include "widgets/ApplicationWatch.h"

#include <memory>
#include <vector>

namespace DisplayAPI {

/// A tab screen's data, and what hears its window and the language. The page of the current tab stands in the window,
/// which owns its widget meanwhile; the others keep their own. What is told on the way may delete the tab screen: where
/// more follows, an operation returns false at that.
struct TabScreenSide::Impl : public PegThing {
    Impl(TabScreenSide& screen, TabScreen* facade, TabScreen::IconType icon, bool leftGoesBack, Panel panelOfScreen);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    int size() const { return static_cast<int>(tabs.size()); }
    bool isTab(int tab) const { return tab >= 0 && tab < size(); }
    bool isOnScreen() const { return window != nullptr && window->StatusIs(PSF_VISIBLE); }

    void add(TranslatedText title, DisplayablePrivateIfc* page, bool makeCurrent);
    void remove(int tab);
    bool choose(int tab);
    void setPage(int tab, DisplayablePrivateIfc* page);
    void setTitle(int tab, TranslatedText title);
    void showTitles();

    /// Empty where there is no such tab.
    std::string titleOf(int tab) const;

    /// Null where no tab is current, or that is empty.
    DisplayablePrivateIfc* currentPage() const;
    void connectPage(DisplayPrivateIfc* display);
    void pageLostFocus();
    bool shown();

    /// Tells the display when a tab screen on screen looks different.
    bool changed();

    /// Of the bar, and of the page behind it.
    std::string asText() const;
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    struct Tab {
        TranslatedText title;
        DisplayablePrivateIfc* page;
    };

    TabScreenSide& self;
    TabScreen* const owner;
    const Panel panel;
    WatchedWidget<host::TabWindow> window;
    OwnershipDelegate<host::TabWindow> ownership{window.slot(), true};
    std::vector<Tab> tabs;
    int current = -1;
    const ApplicationWatch application{*this};

private:
    void moveTo(int tab);
    void enter();
    bool isPageIn() const;
    bool putPageIn();
    bool takePageOut();
    bool showPage();
    std::string barAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    const std::shared_ptr<void> mLife = std::make_shared<int>();
};

} // namespace DisplayAPI
