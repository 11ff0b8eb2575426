#pragma once

#include "host/widgets/list/ListLayout.h"

namespace host {

/// What of a list decides where its parts stand.
struct ListState {
    int rows = 0;
    int top = 0; ///< the first row in view
    int statusLines = 0;
    bool titled = false;
    bool ticker = false;
    bool back = false;
    bool exclusive = false;
    bool mirrored = false; ///< for a language that is read from right to left
};

/// Where the parts of a list stand. Painting and invalidation both ask here. A part that is not there is empty.
struct ListGeometry {
    PegRect status; ///< all status lines and the line below them
    PegRect firstStatusLine;
    PegRect title;
    PegRect titleText;
    PegRect ticker;
    PegRect back;   ///< the arrow's cell
    PegRect body;   ///< all rows
    PegRect scroll; ///< the place of the scroll bar or of the arrows
    PegRect track;  ///< of a scroll bar: between its arrows
    PegRect thumb;
    PegRect firstMark; ///< of the first row in view, as is the text
    PegRect firstText;
    int rowHeight = 1;
    int visibleRows = 0;

    /// `slot` counts from the first row in view.
    PegRect row(int slot) const;
    PegRect mark(int slot) const;
    PegRect text(int slot) const;

    int statusLines() const;
    PegRect statusLine(int line) const;

    friend bool operator==(const ListGeometry&, const ListGeometry&) = default;
};

ListGeometry geometryOf(const KestrelListBox::Layout& layout, const PegRect& area, const ListState& state);

} // namespace host
