#pragma once

#include "host/widgets/list/ListGeometry.h"

#include <vector>

class KestrelListBoxItem;

namespace host {

/// A row on the screen, and what the list makes of it.
struct RowInView {
    const KestrelListBoxItem* item = nullptr; ///< may be gone while nobody looks at the list
    PegRect area;                             ///< cut where the list is lower than the row
    bool inverted = false;
    bool framed = false; ///< the current row, while the keys are somebody else's
    bool hasMark = false;
    bool isChosen = false; ///< in an exclusive list

    friend bool operator==(const RowInView&, const RowInView&) = default;
};

/// What of a list is on the screen, and where. Painting, finding and repainting all go by it.
struct ListView {
    ListGeometry parts;
    std::vector<RowInView> rows; ///< from the top

    /// Null where the item is not in view.
    const RowInView* find(const KestrelListBoxItem* item) const;

    /// The row's area, and on the panel of two lines its mark beside that.
    PegRect areaWithMark(const RowInView& row) const;
};

/// Repaints what looks different in `after`. What stands above the rows is not looked at.
void repaintDifferences(PegThing& list, const ListView& before, const ListView& after);

} // namespace host
