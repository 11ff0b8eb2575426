#pragma once

#include "widgets/KestrelListBoxItem.h"

/// A row of a list box with a box before its text, which is checked or not. The row changes nothing by itself. GUI
/// thread only.
class CheckBoxListItem : public KestrelListBoxItem {
public:
    /// Not checked at first.
    explicit CheckBoxListItem(PegString text);

    bool isChecked() const { return mChecked; }
    void setChecked(bool on);
    void swapChecked() { setChecked(!mChecked); }

    Description describe() const override;
    bool hasMark() const override;
    void drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const override;

private:
    bool mChecked = false;
};
