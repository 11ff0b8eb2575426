#pragma once

#include "host/widgets/edit/EditLine.h"

namespace host {

/// What the user searches for, over a list: a magnifier, the line in which he types, and how many entries there are
/// where that has no other place. Keys come from whoever holds it; the line tells its own target.
class SearchStrip : public PegThing {
public:
    SearchStrip();

    EditLine& line() const { return *mLine; }

    /// An empty text takes no room.
    void setCounts(PegString text);
    const PegString& counts() const { return mCounts; }

    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    /// Where the parts stand. Painting and laying out both ask here.
    struct Parts {
        PegRect icon;
        PegRect line;
        PegRect counts;
    };

    Parts parts() const;

    EditLine* const mLine; ///< a child
    PegString mCounts;
};

} // namespace host
