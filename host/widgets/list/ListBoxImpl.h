#pragma once

#include "DisplayAPI/Sequence.h"
#include "host/widgets/list/ListView.h"
#include "host/widgets/status/StatusLines.h"
#include "host/widgets/status/StatusTime.h"
#include "widgets/ApplicationWatch.h"
#include "widgets/KestrelListBoxItem.h"

/// The state of a list box, and what each change of it means for the screen.
struct KestrelListBox::Impl final : host::StatusTimeView {
    struct RowPlace {
        static constexpr bool IS_KEPT = true;
        static void*& of(KestrelListBoxItem& item) { return item.mPlace; }
    };

    Impl(KestrelListBox& self, const Layout& look) : box(self), layout(look), application(self) {}
    ~Impl() { host::StatusTime::watch(*this, false); }

    /// What is on the screen. Kept until something changes.
    const host::ListView& view();

    void insert(KestrelListBoxItem* item, int row);
    void removeAt(int row);
    void clear();
    void makeCurrent(int row);
    void setExclusive(bool on);
    void placeChildren();
    void setStrip(PegThing* shown);
    void languageChanged();

    bool key(int key);
    bool tellIfTyped(int key);
    bool step(int by);
    void tell(std::uint16_t type, int data);
    bool tellLeft();
    bool tellIfRow(std::uint16_t type);

    /// After each change: keeps the current row in view, and repaints what looks different.
    void update();
    void refresh();
    void repaintItem(const KestrelListBoxItem* item);

    /// What the margins and the mark leave of a row.
    PegRect textOf(const host::RowInView& row) const { return mInView.parts.text(row.area, row.hasMark); }

    const host::StatusTime* statusTime() const override { return host::StatusTime::current(); }
    void statusTimeChanged() override;
    void setStatusLines(int lines);
    void setStatusText(int line, std::string text);
    void placeStatus();

    void drawStatus(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawTitleText(PegPainter& painter, const PegRect& cell) const;
    void drawTitle(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawRow(PegPainter& painter, const host::ListView& view, const host::RowInView& row) const;
    void drawScroll(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawTickerRule(PegPainter& painter, const host::ListGeometry& parts) const;

    KestrelListBox& box;
    const Layout& layout;
    ApplicationWatch application;
    host::StatusLines status;
    int statusShown = 0; ///< status lines that take room where there is any
    DisplayAPI::Sequence<KestrelListBoxItem, RowPlace> rows;
    PegString title;
    PegString titleEnd;
    const Picture* titlePicture = nullptr;
    PegThing* target = nullptr;
    PegThing* inStrip = nullptr; ///< a child
    KeyTaker keyTaker;
    int current = -1;
    int top = 0;
    int lastTop = 0; ///< that of a view that ends with the last row; see mHasEndMoved
    bool highlight = true;
    bool tellsKeypad = false;
    bool tellsLeft = true;
    bool active = true;
    bool back = false;
    bool exclusive = false;
    bool ticker = false;

private:
    host::ListState state() const;
    int heightIn(const KestrelListBoxItem& item) const;
    int firstRowBefore(int end, int height) const;
    void insertBelowCurrent(KestrelListBoxItem* item, int row);
    bool isBelowView(int row) const;
    void findLastTop(int height);
    void scrollToCurrent();
    void layOut();
    void layOutParts();
    void markCurrent(bool on);

    host::ListView mInView;
    host::ListView mFormer;    ///< what was before the last change
    bool mIsLaidOut = false;   ///< whether `mInView` is what is on the screen
    bool mHasEndMoved = false; ///< but for the scroll bar: `lastTop` has to be found again
};
