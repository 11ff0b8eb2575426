#pragma once

#include "host/widgets/telephony/LinesRow.h"

namespace DisplayAPI {

/// A row of lines with a check mark in front of them. GUI thread only.
class ForwardRow : public host::LinesRow {
public:
    ForwardRow() : LinesRow("CallForwardItem") {}

    bool isChecked() const { return mChecked; }

    /// Whoever hears the list is told last, as by show().
    void setChecked(bool on);

    /// Whether there is a mark that shows it. Nobody is told.
    void showMark(bool on);

    bool hasMark() const override { return mShowsMark; }
    void drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const override;

private:
    bool mChecked = false;
    bool mShowsMark = true;
};

} // namespace DisplayAPI
