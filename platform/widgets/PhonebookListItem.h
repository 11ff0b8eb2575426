#pragma once

#include "widgets/KestrelListBoxItem.h"

/// A row of a list box that shows an entry of a phonebook: an icon and a text. GUI thread only.
class PhonebookListItem : public KestrelListBoxItem {
public:
    /// `icon`: 1 work, 2 home, 3 mobile, 4 letter, 5 person, 6 picture; there is none for other numbers.
    PhonebookListItem(PegString text, int icon, bool bold);

    int icon() const { return mIcon; }
    bool isBold() const { return mBold; }

    void Draw(PegPainter& painter, const Place& place) const override;
    Description describe() const override;

private:
    int mIcon;
    bool mBold;
};
