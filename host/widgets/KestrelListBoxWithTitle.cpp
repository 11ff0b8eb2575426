#include "widgets/KestrelListBoxWithTitle.h"

#include "host/widgets/ListLayout.h"

namespace {

constexpr KestrelListBox::Layout LAYOUT{
    .panel = {0, 0, 239, 127},
    .font = host::Font::TEXT,
    .titleFont = host::Font::TEXT_BOLD,
    .statusLineHeight = 14,
    .titleHeight = 20,
    .rowHeight = 18,
    .gutter = 0,
    .leftInset = 6,
    .rightInset = 3,
    .scrollWidth = 8,
    .tickerInTitle = false,
    .scrollBar = true,
};

} // namespace

KestrelListBoxWithTitle::KestrelListBoxWithTitle() : KestrelListBox(TYPE_LIST_WITH_TITLE, LAYOUT) {}
