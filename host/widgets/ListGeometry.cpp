#include "host/widgets/ListGeometry.h"

#include "host/lcd/Geometry.h"

namespace host {

namespace {

constexpr PegRect NOWHERE{0, 0, -1, -1};
constexpr int TITLE_RULE = 2; ///< the line under a title and the gap below it
constexpr int MARK_WIDTH = 7;
constexpr int MARK_GAP = 4;
constexpr int ARROW_HEIGHT = 8;
constexpr int LEAST_THUMB = 6;

using Layout = KestrelListBox::Layout;

/// The way back is shown in the gutter, or where there is none in the title bar, which comes for it if need be.
void placeTitle(ListGeometry& geometry, const Layout& layout, const PegRect& area, const ListState& state)
{
    const bool inGutter = state.back && layout.gutter > 0;
    const bool inBar = state.back && !inGutter;
    const bool bar = state.titled || inBar;
    const int textHeight = layout.titleHeight - TITLE_RULE;
    geometry.title = bar ? rectAt(area.left, area.top, widthOf(area), layout.titleHeight) : NOWHERE;
    geometry.back = NOWHERE;
    if (inGutter)
        geometry.back = rectAt(area.left, area.top, layout.gutter, bar ? textHeight : heightOf(area));
    if (inBar)
        geometry.back = rectAt(area.left + layout.leftInset, area.top, MARK_WIDTH, textHeight);
    const int left = layout.gutter + layout.leftInset + (inBar ? MARK_WIDTH + MARK_GAP : 0);
    const int right = layout.rightInset + (layout.scrollBar ? 0 : layout.scrollWidth);
    geometry.titleText = rectAt(area.left + left, area.top, widthOf(area) - left - right, textHeight);
}

/// The rows take what is left of the title, evenly.
void placeBody(ListGeometry& geometry, const Layout& layout, const PegRect& area, const ListState& state)
{
    const int titleHeight = isEmpty(geometry.title) ? 0 : layout.titleHeight;
    const int height = std::max(0, heightOf(area) - titleHeight);
    geometry.rowHeight = layout.rowHeight;
    geometry.visibleRows = height / layout.rowHeight;
    const bool scroll = !layout.scrollBar || state.rows > geometry.visibleRows;
    const int width = widthOf(area) - layout.gutter - (scroll ? layout.scrollWidth : 0);
    const int used = geometry.visibleRows * layout.rowHeight;
    geometry.body = rectAt(area.left + layout.gutter, area.top + titleHeight + (height - used) / 2, width, used);
    geometry.scroll = scroll ? rectAt(geometry.body.right + 1, geometry.body.top, layout.scrollWidth, used) : NOWHERE;
}

void placeRowParts(ListGeometry& geometry, const Layout& layout, const ListState& state)
{
    const bool inRow = state.exclusive && layout.gutter == 0;
    geometry.markLeft = inRow ? layout.leftInset : -layout.gutter;
    geometry.textLeft = layout.leftInset + (inRow ? MARK_WIDTH + MARK_GAP : 0);
    geometry.textRight = layout.rightInset;
}

/// The thumb is to the track as the rows in view are to all.
void placeThumb(ListGeometry& geometry, const Layout& layout, const ListState& state)
{
    const PegRect& scroll = geometry.scroll;
    geometry.track = geometry.thumb = NOWHERE;
    if (!layout.scrollBar || state.rows <= geometry.visibleRows)
        return;
    geometry.track =
        rectAt(scroll.left + 1, scroll.top + ARROW_HEIGHT, widthOf(scroll) - 1, heightOf(scroll) - 2 * ARROW_HEIGHT);
    const int track = heightOf(geometry.track);
    const int length = std::max(LEAST_THUMB, track * geometry.visibleRows / state.rows);
    const int start = (track - length) * state.top / (state.rows - geometry.visibleRows);
    geometry.thumb = rectAt(geometry.track.left, geometry.track.top + start, widthOf(geometry.track), length);
}

} // namespace

PegRect ListGeometry::row(int slot) const
{
    return rectAt(body.left, body.top + slot * rowHeight, widthOf(body), rowHeight);
}

PegRect ListGeometry::mark(int slot) const
{
    const PegRect cell = row(slot);
    return rectAt(cell.left + markLeft, cell.top, MARK_WIDTH, rowHeight);
}

PegRect ListGeometry::text(int slot) const
{
    const PegRect cell = row(slot);
    return rectAt(cell.left + textLeft, cell.top, widthOf(cell) - textLeft - textRight, rowHeight);
}

ListGeometry geometryOf(const Layout& layout, const PegRect& area, const ListState& state)
{
    ListGeometry geometry;
    placeTitle(geometry, layout, area, state);
    placeBody(geometry, layout, area, state);
    placeRowParts(geometry, layout, state);
    placeThumb(geometry, layout, state);
    return geometry;
}

} // namespace host
