#include "widgets/KestrelListBoxWithTitle.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/list/ListBoxImpl.h"
#include "host/widgets/popup/PopupFrame.h"
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

/// A list of lines is the same on every panel: on a smaller one it has what there is.
KestrelListBoxWithTitle::KestrelListBoxWithTitle() : KestrelListBox(TYPE_LIST_WITH_TITLE, LAYOUT)
{
    const auto [width, height] = host::runningPanel();
    Resize(host::intersection(LAYOUT.panel, host::rectAt(0, 0, width, height)));
}

void KestrelListBoxWithTitle::setSystemWindowLines(int lines)
{
    impl().setStatusLines(lines);
}

void KestrelListBoxWithTitle::setSystemWindowText(PegString text, int line)
{
    impl().setStatusText(line, ICC::fromUNICODEtoUTF8(text));
}

void KestrelListBoxWithTitle::removeSystemWindowLine(int line)
{
    impl().setStatusText(line, {});
}
