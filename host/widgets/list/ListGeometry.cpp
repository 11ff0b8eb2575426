#include "host/widgets/list/ListGeometry.h"

#include "host/lcd/Geometry.h"

namespace host {

namespace {

constexpr PegRect NOWHERE{0, 0, -1, -1};
constexpr int RULE = 1;       ///< a line between two parts
constexpr int TITLE_RULE = 2; ///< the line under a title and the gap below it
constexpr int MARK_WIDTH = 7;
constexpr int MARK_GAP = 4;
constexpr int ARROW_HEIGHT = 8;
constexpr int LEAST_THUMB = 6;

using Layout = KestrelListBox::Layout;

PegRect cutTop(PegRect& area, int height)
{
    const PegRect part = rectAt(area.left, area.top, widthOf(area), height);
    area.top = static_cast<std::int16_t>(area.top + height);
    return part;
}

PegRect cutBottom(PegRect& area, int height)
{
    area.bottom = static_cast<std::int16_t>(area.bottom - height);
    return rectAt(area.left, area.bottom + 1, widthOf(area), height);
}

PegRect lowered(const PegRect& area, int by)
{
    return rectAt(area.left, area.top + by, widthOf(area), heightOf(area));
}

/// The title bar comes for a way back or a ticker if need be.
bool hasBar(const Layout& layout, const ListState& state)
{
    return state.titled || (state.back && layout.gutter == 0) || (state.ticker && layout.tickerInTitle);
}

/// As many lines as leave room for a row.
void placeStatus(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    const int others = (hasBar(layout, state) ? layout.titleHeight : 0) + RULE + layout.rowHeight;
    const int lines = std::clamp((heightOf(rest) - others) / layout.statusLineHeight, 0, state.statusLines);
    geometry.status = lines > 0 ? cutTop(rest, lines * layout.statusLineHeight + RULE) : NOWHERE;
    geometry.firstStatusLine =
        rectAt(rest.left + layout.leftInset, geometry.status.top, widthOf(rest) - layout.leftInset - layout.rightInset,
               lines > 0 ? layout.statusLineHeight : 0);
}

void placeTitle(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    const int right = layout.rightInset + (layout.scrollBar ? 0 : layout.scrollWidth);
    const int left = layout.gutter + layout.leftInset;
    geometry.title = hasBar(layout, state) ? cutTop(rest, layout.titleHeight) : NOWHERE;
    geometry.titleText =
        rectAt(rest.left + left, geometry.title.top, widthOf(rest) - left - right, layout.titleHeight - TITLE_RULE);
}

/// In the title's place, or in a strip of its own below the rows, under a line.
void placeTicker(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    geometry.ticker = NOWHERE;
    if (!state.ticker)
        return;
    geometry.ticker = layout.tickerInTitle ? geometry.titleText : cutBottom(rest, layout.rowHeight);
    if (!layout.tickerInTitle)
        geometry.ticker.top = static_cast<std::int16_t>(geometry.ticker.top + RULE);
}

/// The rows take what is left, evenly.
void placeBody(ListGeometry& geometry, const Layout& layout, const PegRect& rest, const ListState& state)
{
    const int height = std::max(0, heightOf(rest));
    geometry.rowHeight = layout.rowHeight;
    geometry.visibleRows = height / layout.rowHeight;
    const bool scroll = !layout.scrollBar || state.rows > geometry.visibleRows;
    const int width = widthOf(rest) - layout.gutter - (scroll ? layout.scrollWidth : 0);
    const int used = geometry.visibleRows * layout.rowHeight;
    geometry.body = rectAt(rest.left + layout.gutter, rest.top + (height - used) / 2, width, used);
    geometry.scroll = scroll ? rectAt(geometry.body.right + 1, geometry.body.top, layout.scrollWidth, used) : NOWHERE;
}

void placeRowParts(ListGeometry& geometry, const Layout& layout, const ListState& state)
{
    const bool inRow = state.exclusive && layout.gutter == 0;
    const PegRect row = geometry.row(0);
    const int textLeft = layout.leftInset + (inRow ? MARK_WIDTH + MARK_GAP : 0);
    geometry.firstMark =
        rectAt(row.left + (inRow ? layout.leftInset : -layout.gutter), row.top, MARK_WIDTH, layout.rowHeight);
    geometry.firstText =
        rectAt(row.left + textLeft, row.top, widthOf(row) - textLeft - layout.rightInset, layout.rowHeight);
}

/// The thumb is to the track as the rows in view are to all. One row alone has the arrows only.
void placeThumb(ListGeometry& geometry, const Layout& layout, const ListState& state)
{
    const PegRect& scroll = geometry.scroll;
    geometry.track = geometry.thumb = NOWHERE;
    if (!layout.scrollBar || state.rows <= geometry.visibleRows)
        return;
    const int track = heightOf(scroll) - 2 * ARROW_HEIGHT;
    if (track < LEAST_THUMB)
        return;
    geometry.track = rectAt(scroll.left + 1, scroll.top + ARROW_HEIGHT, widthOf(scroll) - 1, track);
    const int length = std::max(LEAST_THUMB, track * geometry.visibleRows / state.rows);
    const int start = (track - length) * state.top / (state.rows - geometry.visibleRows);
    geometry.thumb = rectAt(geometry.track.left, geometry.track.top + start, widthOf(geometry.track), length);
}

/// Every part changes sides.
void mirror(ListGeometry& geometry, const PegRect& area)
{
    for (PegRect* part : {&geometry.firstStatusLine, &geometry.titleText, &geometry.ticker, &geometry.body,
                          &geometry.scroll, &geometry.track, &geometry.thumb, &geometry.firstMark, &geometry.firstText})
        *part = isEmpty(*part)
                    ? NOWHERE
                    : rectAt(area.left + area.right - part->right, part->top, widthOf(*part), heightOf(*part));
}

/// In the gutter, or where there is none in the title bar. The arrow stands where the left key is, in whichever
/// direction texts are read.
void placeBack(ListGeometry& geometry, const Layout& layout, const PegRect& area, const ListState& state)
{
    geometry.back = NOWHERE;
    if (!state.back)
        return;
    const PegRect beside = isEmpty(geometry.title) ? area : geometry.titleText;
    const int left = area.left + (layout.gutter > 0 ? 0 : layout.leftInset);
    geometry.back = rectAt(left, beside.top, layout.gutter > 0 ? layout.gutter : MARK_WIDTH, heightOf(beside));
    const int clear = geometry.back.right + 1 + (layout.gutter > 0 ? layout.leftInset : MARK_GAP);
    geometry.titleText.left = static_cast<std::int16_t>(std::max<int>(geometry.titleText.left, clear));
}

} // namespace

PegRect ListGeometry::row(int slot) const
{
    return rectAt(body.left, body.top + slot * rowHeight, widthOf(body), rowHeight);
}

PegRect ListGeometry::mark(int slot) const
{
    return lowered(firstMark, slot * rowHeight);
}

PegRect ListGeometry::text(int slot) const
{
    return lowered(firstText, slot * rowHeight);
}

int ListGeometry::statusLines() const
{
    return isEmpty(status) ? 0 : heightOf(status) / heightOf(firstStatusLine);
}

PegRect ListGeometry::statusLine(int line) const
{
    return lowered(firstStatusLine, line * heightOf(firstStatusLine));
}

ListGeometry geometryOf(const Layout& layout, const PegRect& area, const ListState& state)
{
    ListGeometry geometry;
    PegRect rest = area;
    placeStatus(geometry, layout, rest, state);
    placeTitle(geometry, layout, rest, state);
    placeTicker(geometry, layout, rest, state);
    placeBody(geometry, layout, rest, state);
    placeRowParts(geometry, layout, state);
    placeThumb(geometry, layout, state);
    if (state.mirrored)
        mirror(geometry, area);
    placeBack(geometry, layout, area, state);
    return geometry;
}

} // namespace host
