#pragma once

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/list/ListLayout.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace examples {

/// A row of a list with a check box, which the star key turns over, and a second line, which the hash key shows and
/// hides.
class TwoLineRow : public KestrelListBoxItem {
public:
    TwoLineRow(PegString first, PegString second) : KestrelListBoxItem(std::move(first)), mSecond(std::move(second)) {}

    int heightIn(const Layout& layout) const override { return (mOpen ? 2 : 1) * layout.rowHeight; }

    void Draw(PegPainter& painter, const Place& place) const override
    {
        const PegRect& cell = place.text;
        const int height = place.layout.rowHeight;
        painter.text(host::rectAt(cell.left, cell.top, host::widthOf(cell), height), DataGet(),
                     {place.layout.titleFont, host::startAlign(), place.inverted});
        if (mOpen)
            painter.text(host::rectAt(cell.left, cell.top + height, host::widthOf(cell), height), mSecond,
                         {place.layout.font, host::startAlign(), place.inverted});
    }

    Description describe() const override
    {
        return mOpen ? Description{"TwoLineRow", {DataGet(), mSecond}} : Description{"TwoLineRow", {DataGet()}};
    }

    bool key(int key) override
    {
        if (key == PK_HASH)
            open(!mOpen);
        else if (key == PK_STAR)
            check(!mChecked);
        return key == PK_HASH || key == PK_STAR;
    }

    bool hasMark() const override { return true; }

    void drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const override
    {
        const host::Level ink = inverted ? host::Level::BARE : host::Level::DARK;
        const int side = host::widthOf(cell);
        const PegRect box = host::rectAt(cell.left, (cell.top + cell.bottom + 1 - side) / 2, side, side);
        painter.frame(box, ink);
        if (mChecked)
            painter.fill(host::rectAt(box.left + 2, box.top + 2, side - 4, side - 4), ink);
    }

    void setSecond(PegString text)
    {
        mSecond = std::move(text);
        changed();
    }

    void open(bool on)
    {
        mOpen = on;
        heightChanged();
    }

    bool isChecked() const { return mChecked; }

    void check(bool on)
    {
        mChecked = on;
        changed();
    }

private:
    PegString mSecond;
    bool mOpen = true;
    bool mChecked = false;
};

} // namespace examples
