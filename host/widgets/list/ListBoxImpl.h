#pragma once

#include "DisplayAPI/Sequence.h"
#include "host/widgets/list/ListGeometry.h"
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

    host::ListGeometry geometry() const;
    int lastTop() const;

    void insert(KestrelListBoxItem* item, int row);
    void removeAt(int row);
    void makeCurrent(int row);
    void scrollToCurrent();
    void moveMark(KestrelListBoxItem* from);
    void placeTicker();
    void languageChanged();

    bool key(int key);
    void step(int by);
    void tell(std::uint16_t type, int data);
    void tellIfRow(std::uint16_t type);

    void repaintRow(int row);
    void repaintItem(const KestrelListBoxItem* item);
    void repaintRows(int first, int last);
    void repaintAfter(const host::ListGeometry& before, int topBefore);

    const host::StatusTime* statusTime() const override { return host::StatusTime::current(); }
    void statusTimeChanged() override;
    void setStatusLines(int lines);
    void setStatusText(int line, const std::string& text);
    void placeStatus();

    void drawStatus(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawTitle(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawRow(PegPainter& painter, const host::ListGeometry& parts, int slot) const;
    void drawScroll(PegPainter& painter, const host::ListGeometry& parts) const;
    void drawTickerRule(PegPainter& painter, const host::ListGeometry& parts) const;

    KestrelListBox& box;
    const Layout& layout;
    ApplicationWatch application;
    host::StatusLines status;
    int statusShown = 0; ///< status lines that take room where there is any
    DisplayAPI::Sequence<KestrelListBoxItem, RowPlace> rows;
    PegString title;
    PegThing* target = nullptr;
    int current = -1;
    int top = 0;
    bool highlight = true;
    bool back = false;
    bool exclusive = false;
    bool ticker = false;
};
