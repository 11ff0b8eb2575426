#pragma once

#include "host/widgets/list/ListLayout.h"

namespace host {

/// What of a list decides where its parts stand.
struct ListState {
    int rows = 0;
    int top = 0;     ///< the first row in view
    int lastTop = 0; ///< that row at the end of the list
    int statusLines = 0;
    bool titled = false;
    bool ticker = false;
    bool strip = false;
    bool back = false;
    bool mirrored = false; ///< for a language that is read from right to left
};

/// Where the parts of a list stand. Painting and invalidation both ask here. A part that is not there is empty.
struct ListGeometry {
    PegRect status; ///< all status lines and the line below them
    PegRect firstStatusLine;
    PegRect title;
    PegRect titleText;
    PegRect ticker;
    PegRect strip;
    PegRect back;   ///< the arrow's cell
    PegRect body;   ///< all rows
    PegRect scroll; ///< the place of the scroll bar or of the arrows
    PegRect track;  ///< of a scroll bar: between its arrows
    PegRect thumb;
    PegRect marks;         ///< as high as the body, as are the columns of texts
    PegRect texts;         ///< of rows without a mark
    PegRect besideMark;    ///< of rows with one
    bool hasAbove = false; ///< whether there are rows above the view, and below
    bool hasBelow = false;

    /// The parts of the row that has the area `row`.
    PegRect mark(const PegRect& row) const;
    PegRect text(const PegRect& row, bool isMarked) const;

    int statusLines() const;
    PegRect statusLine(int line) const;

    friend bool operator==(const ListGeometry&, const ListGeometry&) = default;
};

/// The pixels that all rows have, whatever their number: `rows` and `top` do not matter.
int heightOfRows(const KestrelListBox::Layout& layout, const PegRect& area, const ListState& state);

ListGeometry geometryOf(const KestrelListBox::Layout& layout, const PegRect& area, const ListState& state);

} // namespace host
