#pragma once

#include "host/lcd/Icons.h"
#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"

#include <vector>

namespace host {

/// Tabs side by side behind a picture, the current one raised, and inverted while the bar has the focus. Left and right
/// make the next tab current, OK and down enter it. Where not all fit, the current one is in sight, and arrows tell of
/// the others. Tells its target PM_CURRENT_CHANGED and PM_CLICKED with the tab's number, and PM_LEFT where the left key
/// goes back.
class TabBar : public Field {
public:
    /// `icon` is not owned; null is none. `leftGoesBack`: from the leftmost tab.
    TabBar(const Icon* icon, bool leftGoesBack) : mIcon(icon), mLeftGoesBack(leftGoesBack) {}

    void append(PegString title);

    /// Ignored where there is no such tab. Removing the current one leaves none current.
    void remove(int tab);
    void setTitle(int tab, PegString title);
    void setCurrent(int tab);

    int count() const { return static_cast<int>(mTabs.size()); }
    const PegString& title(int tab) const { return mTabs.at(static_cast<std::size_t>(tab)).title; }

    /// -1 where there is none.
    int current() const { return mCurrent; }

    /// Where a tab stands; empty for one out of sight.
    PegRect tabArea(int tab) const;

    static int height();
    int heightFor(int width) const override;
    bool key(int key) override;
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    struct Tab {
        PegString title;
        int width;
    };

    /// Where the parts stand; one that is not there is empty. Painting and finding both ask here.
    struct Parts {
        PegRect back;
        PegRect icon;
        PegRect before; ///< the arrow towards the first tab
        PegRect after;
        std::vector<PegRect> tabs; ///< from mFirst on
    };

    Parts parts() const;
    int room(bool scrolls) const;
    int widthOfTabs(int from, int to) const;
    bool scrolls() const;
    bool isTab(int tab) const { return tab >= 0 && tab < count(); }
    void keepInSight();
    void changed();
    bool step(int by);
    bool enter();
    void drawTab(PegPainter& painter, int tab, const PegRect& area) const;
    void drawArrows(PegPainter& painter, const Parts& where) const;

    const Icon* mIcon;
    bool mLeftGoesBack;
    std::vector<Tab> mTabs;
    int mCurrent = -1;
    int mFirst = 0; ///< the first tab in sight
};

} // namespace host
