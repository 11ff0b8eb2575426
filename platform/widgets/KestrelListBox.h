#pragma once

#include "toolkit/PString.h"
#include "toolkit/PegThing.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

class KestrelListBoxItem;

/// A column of rows of which one is current, with the keys to move through it. GUI thread only.
///
/// The message target is told what the user does: PM_CURRENT_CHANGED, PM_CLICKED (OK), PM_LEFT, PM_RIGHT; and
/// PM_ROW_CHANGED of rows that say so.
/// Up and down stop at the ends, where the key goes on to the parent, as OK and right do where there are no rows.
/// Ownership: rows belong to whoever appended them. Rows may differ in height; the list shows as many whole ones as it
/// has room for, at least one. Cost: append, row access, scrolling and painting do not depend on the number of rows.
class KestrelListBox : public PegThing {
public:
    /// What the lists of the panels differ in; known to the platform's rows.
    struct Layout;

    /// What may stand before a title; the platform's own, and there as long as the process.
    struct Picture;

    using Part = std::function<PegRect(const Layout& layout, const PegRect& text)>;

    ~KestrelListBox() override;

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;
    void Resize(const PegRect& area) override;

    /// Not owned; null tells nobody.
    void setMessageTarget(PegThing* target);

    /// Whether digits, star and hash that the current row has no use for are the target's, as PM_KEY, and not the
    /// parent's. They are not at first.
    void setTellsKeypad(bool on);

    /// Whether left that the current row has no use for is the target's, as PM_LEFT, and not the parent's. It is at
    /// first.
    void setTellsLeft(bool on);

    int numItems() const;
    KestrelListBoxItem* itemAt(int row) const;       ///< null outside 0 to numItems() - 1
    int rowOf(const KestrelListBoxItem* item) const; ///< -1 where it is not in the list

    /// Null is ignored; a row below 0 inserts at the front, one past the end appends. An item that already stands in a
    /// list is taken out of that first.
    void append(KestrelListBoxItem* item);
    void insert(KestrelListBoxItem* item, int row);

    /// Takes the row out without deleting it; ignored where it is not in the list.
    void remove(const KestrelListBoxItem* item);
    void clear();

    /// Repaints the row if it is visible.
    void itemChanged(const KestrelListBoxItem* item);

    /// The same of a part of it alone, which is told of the place that the row has for its text.
    void itemChanged(const KestrelListBoxItem* item, const Part& part);

    /// Tells the message target of the row if it is visible. The row, and the list, may be gone then.
    void tellItemChanged(const KestrelListBoxItem* item);

    /// Tells the message target that rows have come or gone, if the list is visible. The list may be gone then.
    void tellRowsChanged();

    /// As itemChanged(), and what stands below it. The current row stays in view.
    void itemHeightChanged(const KestrelListBoxItem* item);

    /// The current row; -1 where the list is empty. A change of rows keeps the current item where it can.
    int currentRow() const;

    /// Makes a row current and scrolls it into view; rows outside the list are ignored. The target is not told.
    void setCurrentRow(int row);

    /// The first row in view.
    int topRow() const;

    /// Where the row stands on the screen; empty where it is not in view.
    PegRect rowArea(int row) const;

    /// The status lines that the list shows itself, how many it keeps visible, and where. Texts are UTF-8, and empty
    /// outside the lines that there are.
    int systemWindowLines() const;
    const std::string& systemWindowText(int line) const;
    PegRect systemWindowArea() const;

    /// An empty one takes no room.
    void setTitle(PegString title);
    const PegString& title() const;

    /// Stands before the title, or alone; null is none.
    void setTitlePicture(const Picture* picture);

    /// Stands at the title's other end, before which a title that is too long is cut. Has the title's bar where
    /// there is none; an empty one takes no room.
    void setTitleEnd(PegString text);

    /// The title's bar; empty where there is none, or a strip stands in its place.
    PegRect titleArea() const;

    /// Whether a strip stands in the title's place.
    bool isTitleCovered() const;

    /// Whether the current row is shown inverted; it is at first.
    void setSelectionHighlight(bool on);

    /// Whether the keys are its own; they are at first. While they are not, the current row is framed, not inverted.
    void setActive(bool on);

    /// Whether left goes back: shown by an arrow.
    void setBackArrow(bool on);

    /// Whether the rows carry the mark of an exclusive list.
    void setExclusive(bool on);

    /// Keeps a strip free for a ticker: below the rows, or in the title's place on the panel of two lines. Whoever puts
    /// a ticker there adds it as a child first; the list places it.
    void setTickerShown(bool on);

    /// The strip that is kept free; empty where none is. It moves when the list is resized.
    PegRect tickerArea() const;

    /// A child from now on, which the list places: below the rows, or in the title's place on the panel of two lines.
    /// Whoever adds it elsewhere takes it back. There is one at a time.
    void setStrip(PegThing* strip);

    using KeyTaker = std::function<bool(const PegMessage& message)>;

    /// Asked before the rows what it does with each key that goes down or up; false leaves it to them. Empty is
    /// nobody. It may delete the list where it answers true.
    void setKeyTaker(KeyTaker taker);

protected:
    struct Impl;

    KestrelListBox(std::uint8_t type, const Layout& layout);

    void VisibilityChanged() override;
    void ChildRemoved(PegThing* child) override;

    Impl& impl() { return *mImpl; }

private:
    std::unique_ptr<Impl> mImpl;
};
