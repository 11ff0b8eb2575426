#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/list/ListBoxImpl.h"

#include <algorithm>
#include <utility>

using namespace host;

ListState KestrelListBox::Impl::state() const
{
    return {.rows = rows.size(),
            .top = top,
            .lastTop = lastTop,
            .statusLines = statusShown,
            .titled = !title.empty() || titlePicture != nullptr || !titleEnd.empty(),
            .ticker = ticker,
            .strip = inStrip != nullptr,
            .back = back,
            .mirrored = isReadFromTheRight()};
}

const ListView& KestrelListBox::Impl::view()
{
    if (!mIsLaidOut)
        layOut();
    else if (mHasEndMoved)
        layOutParts(); // the rows may have changes by now that nobody has compared yet
    return mInView;
}

/// Nothing scrolls. Where the scroll bar stands is worked out when somebody looks: thousands of rows may come before.
void KestrelListBox::Impl::insertBelowCurrent(KestrelListBoxItem* item, int row)
{
    const bool isSeen = !isBelowView(row);
    rows.insert(item, row);
    const bool wasKnown = !mHasEndMoved;
    mHasEndMoved = true;
    if (isSeen)
        refresh();
    else if (wasKnown && !isEmpty(mInView.parts.scroll))
        box.Invalidate(mInView.parts.scroll);
}

/// Whether a row that comes in there changes no row on the screen: the first that has no room stays where it is.
bool KestrelListBox::Impl::isBelowView(int row) const
{
    return mIsLaidOut && box.StatusIs(PSF_VISIBLE) && row > top + static_cast<int>(mInView.rows.size());
}

void KestrelListBox::Impl::findLastTop(int height)
{
    lastTop = firstRowBefore(rows.size(), height);
    mHasEndMoved = false;
}

void KestrelListBox::Impl::layOutParts()
{
    if (mHasEndMoved)
        findLastTop(heightOfRows(layout, box.Area(), state()));
    mInView.parts = geometryOf(layout, box.Area(), state());
}

void KestrelListBox::Impl::layOut()
{
    layOutParts();
    mInView.rows.clear();
    const PegRect& body = mInView.parts.body;
    rows.walkFrom(top, [&, row = top, next = int{body.top}](const KestrelListBoxItem* item) mutable {
        const int height = heightIn(*item);
        const int left = body.bottom + 1 - next;
        if (left <= 0 || (height > left && row > top))
            return false;
        mInView.rows.push_back({.item = item,
                                .area = rectAt(body.left, next, widthOf(body), std::min(height, left)),
                                .inverted = highlight && active && row == current,
                                .framed = highlight && !active && row == current,
                                .hasMark = exclusive || item->hasMark(),
                                .isChosen = item->isMarked()});
        next += height;
        ++row;
        return true;
    });
    mIsLaidOut = true;
}

/// While nobody sees the list, it is laid out when somebody asks: many changes are then one.
void KestrelListBox::Impl::refresh()
{
    if (!mIsLaidOut || !box.StatusIs(PSF_VISIBLE)) {
        mIsLaidOut = false;
        box.Invalidate();
        return;
    }
    std::swap(mInView, mFormer);
    layOut();
    repaintDifferences(box, mFormer, mInView);
}

void KestrelListBox::Impl::update()
{
    scrollToCurrent();
    refresh();
}

void KestrelListBox::Impl::repaintItem(const KestrelListBoxItem* item)
{
    if (const RowInView* const row = view().find(item))
        box.Invalidate(mInView.areaWithMark(*row));
}

int KestrelListBox::Impl::heightIn(const KestrelListBoxItem& item) const
{
    return std::max(1, item.heightIn(layout));
}

/// The first row from which on all rows before `end` fit into `height` pixels; one row has as many as it needs.
int KestrelListBox::Impl::firstRowBefore(int end, int height) const
{
    int first = end;
    rows.walkBackFrom(end - 1, [&, left = height](const KestrelListBoxItem* item) mutable {
        left -= heightIn(*item);
        if (left < 0 && first < end)
            return false;
        --first;
        return left > 0;
    });
    return first;
}

/// No further than it has to be, and with no room below the last row that rows above the view could have.
void KestrelListBox::Impl::scrollToCurrent()
{
    const int height = heightOfRows(layout, box.Area(), state());
    findLastTop(height);
    const int first = firstRowBefore(current + 1, height);
    top = std::min(std::clamp(top, first, std::max(first, current)), lastTop);
}
