#pragma once

#include "widgets/KestrelListBoxItem.h"

#include <memory>
#include <vector>

/// A row of a tree in a list box. It knows what stands below it, and shows and hides that itself in the list that it
/// stands in: indented, with a mark that says whether it is open. GUI thread only.
///
/// Ownership: children belong to whoever made them. One that is destroyed takes itself out of its parent and of the
/// list; one whose parent is destroyed leaves the list and has no parent any more.
/// Cost: opening grows with the rows that appear, closing with those that go.
class Peg_TreeListItem : public KestrelListBoxItem { // NOLINT(readability-identifier-naming): the toolkit's name
public:
    using Children = std::vector<Peg_TreeListItem*>;

    explicit Peg_TreeListItem(PegString text);
    ~Peg_TreeListItem() override;

    /// Behind the other children. REQUIRES: it has no parent and stands in no list.
    void append(Peg_TreeListItem& child);

    Peg_TreeListItem* parent() const { return mParent; } ///< null on top
    const Children& children() const { return mChildren; }

    /// How many stand above it.
    int level() const;

    /// Whether its children are shown where it is, also those that are yet to come. It is closed at first. A current
    /// row that is hidden gives its place to the one that has been closed.
    void setOpen(bool on);
    bool isOpen() const { return mOpen; }

    /// The same of itself and of everything that stands below it.
    void setAllOpen(bool on);

    /// Whether it is open and has something to show, and whether the user may open it.
    bool showsChildren() const { return mOpen && !mChildren.empty(); }
    bool canBeOpened() const { return !mOpen && !mChildren.empty() && !mInactive && !mProtected; }

    /// Grey.
    void setInactive(bool on);
    bool isInactive() const { return mInactive; }

    /// With a padlock at its end.
    void setProtected(bool on);
    bool isProtected() const { return mProtected; }

    /// Whether a row that leads back to it stands behind its children while it is open.
    void setWayBack(bool on);

    /// Whether it is such a row itself, of its parent.
    bool isWayBack() const;

    /// Whether its text begins where those of all levels do.
    void setAligned(bool on);

    /// Ends with the row: whoever does not own it looks whether it is there still.
    std::weak_ptr<void> life();

    void Draw(PegPainter& painter, const Place& place) const override;
    Description describe() const override;

private:
    template <typename Visit>
    void forEachShownBelow(Visit visit);
    template <typename Visit>
    void forEachBelow(Visit visit);
    KestrelListBoxItem* lastShown();
    void showChildren();
    void hideChildren();
    void updateWayBack();
    void remove(const Peg_TreeListItem& child);

    Peg_TreeListItem* mParent = nullptr;
    Children mChildren;
    std::unique_ptr<Peg_TreeListItem> mWayBack; ///< null while it is not shown
    std::shared_ptr<void> mLife;                ///< null until somebody asks
    bool mOpen = false;
    bool mInactive = false;
    bool mProtected = false;
    bool mHasWayBack = false;
    bool mAligned = false;
};
