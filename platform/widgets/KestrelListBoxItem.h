#pragma once

#include "toolkit/PString.h"
#include "widgets/KestrelListBox.h"

#include <string>
#include <vector>

class PegPainter;

/// One row of a list box: by itself a text on one line. Derived rows look different, are higher, have a mark and keys
/// of their own; scrolling, selection and painting what has changed are the list's.
///
/// A row stands in one list at most, and knows it: one that is destroyed while it stands in a list takes itself out.
/// GUI thread only.
class KestrelListBoxItem {
public:
    using Layout = KestrelListBox::Layout;

    /// Where the list shows the row, and how.
    struct Place {
        const Layout& layout;
        PegRect area;  ///< the whole row, filled already; cut where the list is lower than the row
        PegRect text;  ///< what the margins and the mark leave of it
        bool inverted; ///< bare on dark: the current row
    };

    /// The row in the screen as text: what the sub-item is called, and its texts.
    struct Description {
        std::string name;
        std::vector<PegString> texts;
    };

    explicit KestrelListBoxItem(PegString text);
    KestrelListBoxItem(const KestrelListBoxItem&) = delete;
    KestrelListBoxItem& operator=(const KestrelListBoxItem&) = delete;
    virtual ~KestrelListBoxItem();

    const PegString& DataGet() const { return mText; }

    /// Changes the text. The list that the row stands in paints it again.
    void DataSet(PegString text);

    /// Whether the row carries the mark of the chosen one in an exclusive list, which sets it and paints the row again.
    bool isMarked() const { return mMarked; }
    void setMarked(bool marked) { mMarked = marked; }

    /// Where it stands in its list; -1 where it stands in none.
    int row() const;

    /// In pixels, at least 1. The same until the row says heightChanged().
    virtual int heightIn(const Layout& layout) const;

    /// The painter is clipped to the row.
    virtual void Draw(PegPainter& painter, const Place& place) const;

    virtual Description describe() const;

    /// A key while the row is current, before the list sees it. Returns whether the row has used it: the list then does
    /// nothing, and the row may be gone.
    virtual bool key(int key);

    /// Whether the row has a mark wherever it stands; in an exclusive list every row has one.
    virtual bool hasMark() const;
    virtual void drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const;

    /// The text of a row that leads back: an arrow, which is understood in every language.
    static PegString wayBackText();

protected:
    /// The list that it stands in; null where it stands in none.
    KestrelListBox* list() const { return mList; }

    /// The row looks different: paints it again where it is in view.
    void changed();

    /// As changed(), where no more than a part of the row does.
    void changed(const KestrelListBox::Part& part);

    /// Tells whoever hears the list that the row shows something else. Comes last: the row may be gone then.
    void tellChanged();

    /// As changed(), and what stands below the row moves.
    void heightChanged();

private:
    friend class KestrelListBox;

    KestrelListBox* mList = nullptr;
    void* mPlace = nullptr;                ///< the list's own note of where it stands
    [[no_unique_address]] PegString mText; ///< with the mark in the room that it leaves: rows come by the thousand
    bool mMarked = false;
};
