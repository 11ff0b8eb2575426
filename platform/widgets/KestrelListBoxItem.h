#pragma once

#include "toolkit/PString.h"

/// One row of a list box: a text. GUI thread only.
class KestrelListBoxItem {
public:
    explicit KestrelListBoxItem(PegString text);
    KestrelListBoxItem(const KestrelListBoxItem&) = delete;
    KestrelListBoxItem& operator=(const KestrelListBoxItem&) = delete;
    virtual ~KestrelListBoxItem();

    const PegString& DataGet() const { return mText; }

    /// Changes the text; the list that shows the row has to be told with KestrelListBox::itemChanged().
    void DataSet(PegString text);

    /// Whether the row carries the mark of the chosen one in an exclusive list.
    bool isMarked() const { return mMarked; }
    void setMarked(bool marked) { mMarked = marked; }

private:
    PegString mText;
    bool mMarked = false;
};
