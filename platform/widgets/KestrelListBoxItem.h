#pragma once

#include "toolkit/PString.h"

class KestrelListBox;

/// One row of a list box: a text. It stands in one list at most, and knows it: a row that is destroyed while it stands
/// in a list takes itself out. GUI thread only.
class KestrelListBoxItem {
public:
    explicit KestrelListBoxItem(PegString text);
    KestrelListBoxItem(const KestrelListBoxItem&) = delete;
    KestrelListBoxItem& operator=(const KestrelListBoxItem&) = delete;
    virtual ~KestrelListBoxItem();

    const PegString& DataGet() const { return mText; }

    /// Changes the text. The list that the row stands in paints it again.
    void DataSet(PegString text);

    /// Whether the row carries the mark of the chosen one in an exclusive list.
    bool isMarked() const { return mMarked; }
    void setMarked(bool marked) { mMarked = marked; }

    /// Where it stands in its list; -1 where it stands in none.
    int row() const;

private:
    friend class KestrelListBox;

    PegString mText;
    KestrelListBox* mList = nullptr;
    void* mPlace = nullptr; ///< the list's own note of where it stands
    bool mMarked = false;
};
