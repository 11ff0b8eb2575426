#include "widgets/KestrelListBoxWP1.h"

#include "host/widgets/list/ListLayout.h"

namespace {

/// 24 characters of 8 pixels, and a gutter on either side for marks and arrows.
constexpr KestrelListBox::Layout WP1_LAYOUT{
    .panel = {0, 0, 207, 41},
    .font = host::Font::FIXED,
    .titleFont = host::Font::FIXED_BOLD,
    .statusLineHeight = 21,
    .titleHeight = 21,
    .rowHeight = 21,
    .gutter = 8,
    .leftInset = 1,
    .rightInset = 0,
    .scrollWidth = 7,
    .tickerInTitle = true,
    .scrollBar = false,
};

} // namespace

KestrelListBoxWP1::KestrelListBoxWP1() : KestrelListBox(TYPE_LIST_WP1, WP1_LAYOUT) {}

int KestrelListBoxWP1::Message(const PegMessage& message)
{
    if (message.wType == PM_FOCUS_CHANGED)
        Invalidate();
    return KestrelListBox::Message(message);
}
