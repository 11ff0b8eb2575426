#pragma once

#include "host/widgets/status/StatusStrip.h"
#include "host/widgets/tab/TabBar.h"
#include "toolkit/PegWindow.h"

namespace host {

/// A tab bar, status lines above it where there are any, and below it a page, which gets the rest of the window. The
/// keys are the page's or the bar's: up goes from the page to the bar, the bar tells its target when the user wants to
/// enter the page. What the page has no use for is the bar's.
class TabWindow : public PegWindow {
public:
    TabWindow(const Icon* icon, bool leftGoesBack);

    TabBar& bar() { return *mBar; }
    StatusStrip& status() { return *mStatus; }

    /// Puts the page in the place of the one that is there, which gets its former area back. The page is the window's
    /// property while it is in it; null is none.
    void setPage(PegThing* page);
    PegThing* page() const { return mPage; }

    /// Whose the keys are. Without a page they are the bar's, whoever is wanted.
    enum Place { BAR, PAGE };
    void setPlace(Place place);
    Place place() const { return mPage != nullptr ? mPlace : BAR; }

    /// Moves the focus to where the user is, if it is in this window or nowhere.
    void placeFocus();

    /// Told what the bar tells. Not owned; null is nobody.
    void setMessageTarget(PegThing* target) { mBar->setMessageTarget(target); }

    int Message(const PegMessage& message) override;
    void Resize(const PegRect& area) override;

protected:
    void ChildRemoved(PegThing* child) override;

private:
    PegRect pageArea() const;
    void layOut();
    void showPlace();
    bool key(int key);

    StatusStrip* mStatus;
    TabBar* mBar;
    PegThing* mPage = nullptr;
    PegRect mFormerArea{}; ///< of the page, before it came here
    Place mPlace = PAGE;
};

} // namespace host
