#include "widgets/KestrelListBoxWithTitle.h"

#include "host/widgets/list/ListBoxImpl.h"
#include "utilities/ICC.h"

namespace {

constexpr KestrelListBox::Layout LAYOUT{
    .panel = {0, 0, 239, 127},
    .font = host::Font::TEXT,
    .titleFont = host::Font::TEXT_BOLD,
    .statusLineHeight = 16,
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

void KestrelListBoxWithTitle::setSystemWindowLines(int lines)
{
    impl().setStatusLines(lines);
}

void KestrelListBoxWithTitle::setSystemWindowText(PegString text, int line)
{
    impl().setStatusText(line, ICC::fromUNICODEtoUTF8(text));
}
