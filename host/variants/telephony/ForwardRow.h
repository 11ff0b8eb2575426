#pragma once

#include "host/widgets/telephony/LinesRow.h"

namespace DisplayAPI {

/// A row of lines with a check mark in front of them. GUI thread only.
class ForwardRow : public host::LinesRow {
public:
    ForwardRow() : LinesRow("CallForwardItem") {}

    bool isChecked() const { return mChecked; }

    /// Checked or not, and whether there is a mark that shows it.
    void setChecked(bool on);
    void showMark(bool on);

    bool hasMark() const override { return mShowsMark; }
    void drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const override;

private:
    bool mChecked = false;
    bool mShowsMark = true;
};

} // namespace DisplayAPI
