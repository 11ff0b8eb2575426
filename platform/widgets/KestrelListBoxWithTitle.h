#pragma once

#include "widgets/KestrelListBox.h"

/// The list of the 240 x 128 panel and its narrow form: a title, six rows, a scroll bar where there are more. It shows
/// status lines itself, above the title; they take rows away. GUI thread only.
class KestrelListBoxWithTitle : public KestrelListBox {
public:
    KestrelListBoxWithTitle();

    /// 0 to 6 lines; other values are cut to that.
    void setSystemWindowLines(int lines);

    /// Lines outside 0 to 5 are ignored.
    void setSystemWindowText(PegString text, int line);

    /// Takes the line's text away. Other lines keep their places; those at the end that have no text take no room.
    void removeSystemWindowLine(int line);
};
