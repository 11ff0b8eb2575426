#pragma once

#include "host/lcd/Fonts.h"
#include "host/lcd/Icons.h"
#include "widgets/KestrelListBox.h"

/// What the list boxes of the panels differ in. Sizes in pixels.
struct KestrelListBox::Layout {
    PegRect panel; ///< the area of a new list
    host::Font font;
    host::Font titleFont;
    int statusLineHeight;
    int titleHeight;
    int rowHeight;
    int gutter;    ///< left of the rows
    int leftInset; ///< from a row's left edge to its text
    int rightInset;
    int scrollWidth;
    bool tickerInTitle; ///< a ticker, or a strip, takes the title's place, not a row's
    bool scrollBar;     ///< a bar, there when it is needed; otherwise arrows, with a place that is always kept
};

struct KestrelListBox::Picture {
    const host::Icon& icon;
};
