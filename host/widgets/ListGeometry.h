#pragma once

#include "host/widgets/ListLayout.h"

namespace host {

/// What of a list decides where its parts stand.
struct ListState {
    int rows = 0;
    int top = 0; ///< the first row in view
    bool titled = false;
    bool back = false;
    bool exclusive = false;
};

/// Where the parts of a list stand. Painting and invalidation both ask here.
struct ListGeometry {
    PegRect title; ///< empty where there is none
    PegRect titleText;
    PegRect back;   ///< the arrow's cell; empty where there is none
    PegRect body;   ///< all rows
    PegRect scroll; ///< empty where there is none
    PegRect track;  ///< of a scroll bar: between its arrows
    PegRect thumb;
    int rowHeight = 1;
    int markLeft = 0; ///< from a row's left edge
    int textLeft = 0;
    int textRight = 0; ///< from a row's right edge
    int visibleRows = 0;

    /// `slot` counts from the first row in view.
    PegRect row(int slot) const;
    PegRect mark(int slot) const;
    PegRect text(int slot) const;

    friend bool operator==(const ListGeometry&, const ListGeometry&) = default;
};

ListGeometry geometryOf(const KestrelListBox::Layout& layout, const PegRect& area, const ListState& state);

} // namespace host
