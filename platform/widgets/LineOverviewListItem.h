#pragma once

#include "widgets/KestrelListBoxItem.h"

#include <memory>

/// A row of a list box that shows a line of the telephone: a sign, the prefix and the name, a mark for HD, and the
/// identity, which stands below them where the panel has room. Its text is the name. GUI thread only.
class LineOverviewListItem : public KestrelListBoxItem {
public:
    /// What the line does, as an icon in front of the name.
    enum Sign : int {
        NO_SIGN,
        FREE,
        DIALS,
        RINGS,
        TALKS,
        HOLDS,
        IS_HELD,
        CONFERS,
        FORWARDS,
        HAS_LETTER,
        KEEPS_QUIET,
        IS_BARRED,
        HAS_FAILED
    };

    LineOverviewListItem();
    ~LineOverviewListItem() override;

    // Each paints the row again where it differs; without an identity the row is one line high.

    void setName(PegString name);
    void setNamePrefix(PegString prefix);
    void setIdentity(PegString identity);
    void setSign(Sign sign);
    void setHDIcon(bool on);
    void setDimmed(bool on);

    /// Bold, and a sign for hold blinks in the place of the line's own; it stands still where the user wants less
    /// motion.
    void setHighlighted(bool on);

    /// Tells whoever hears the list, once, what has changed since the last time. Comes last: the row may be gone then.
    void tell();

    Sign sign() const;
    bool isDimmed() const;
    bool isHighlighted() const;

    int heightIn(const Layout& layout) const override;
    void Draw(PegPainter& painter, const Place& place) const override;
    Description describe() const override;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};
