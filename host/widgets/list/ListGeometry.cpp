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

/// The part of a column that stands beside a row.
PegRect beside(const PegRect& row, const PegRect& column)
{
    return {column.left, row.top, column.right, row.bottom};
}

/// The title bar comes for a way back, a ticker or a strip if need be.
bool hasBar(const Layout& layout, const ListState& state)
{
    return state.titled || (state.back && layout.gutter == 0) ||
           ((state.ticker || state.strip) && layout.tickerInTitle);
}

bool hasStripBelow(const Layout& layout, const ListState& state)
{
    return state.strip && !layout.tickerInTitle;
}

/// As many lines as leave room for a row.
void placeStatus(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    const int others = (hasBar(layout, state) ? layout.titleHeight : 0) + RULE +
                       (hasStripBelow(layout, state) ? 2 : 1) * layout.rowHeight;
    const int lines = std::clamp((heightOf(rest) - others) / layout.statusLineHeight, 0, state.statusLines);
    geometry.status = lines > 0 ? cutTop(rest, lines * layout.statusLineHeight + RULE) : NOWHERE;
    geometry.firstStatusLine =
        rectAt(rest.left + layout.leftInset, geometry.status.top, widthOf(rest) - layout.leftInset - layout.rightInset,
               lines > 0 ? layout.statusLineHeight : 0);
}

/// Where it leaves room for a row: on two lines a list in a tab has one.
void placeTitle(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    const int right = layout.rightInset + (layout.scrollBar ? 0 : layout.scrollWidth);
    const int left = layout.gutter + layout.leftInset;
    const bool fits = heightOf(rest) >= layout.titleHeight + layout.rowHeight;
    geometry.title = fits && hasBar(layout, state) ? cutTop(rest, layout.titleHeight) : NOWHERE;
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

/// Below the rows, or in the title's place; where that has no room it takes the rows'.
void placeStrip(ListGeometry& geometry, const Layout& layout, PegRect& rest, const ListState& state)
{
    geometry.strip = NOWHERE;
    if (hasStripBelow(layout, state))
        geometry.strip = cutBottom(rest, layout.rowHeight);
    else if (state.strip)
        geometry.strip = isEmpty(geometry.title) ? cutTop(rest, heightOf(rest)) : geometry.title;
}

/// Returns what is left for the rows.
PegRect placeFrame(ListGeometry& geometry, const Layout& layout, const PegRect& area, const ListState& state)
{
    PegRect rest = area;
    placeStatus(geometry, layout, rest, state);
    placeTitle(geometry, layout, rest, state);
    placeStrip(geometry, layout, rest, state);
    placeTicker(geometry, layout, rest, state);
    return rest;
}

/// As many rows of text as have room.
int usedHeight(const Layout& layout, const PegRect& rest)
{
    const int height = std::max(0, heightOf(rest));
    return height - height % layout.rowHeight;
}

/// In the middle of what is left.
void placeBody(ListGeometry& geometry, const Layout& layout, const PegRect& rest, const ListState& state)
{
    const int used = usedHeight(layout, rest);
    const bool scroll = !layout.scrollBar || state.lastTop > 0;
    const int width = widthOf(rest) - layout.gutter - (scroll ? layout.scrollWidth : 0);
    geometry.body = rectAt(rest.left + layout.gutter, rest.top + (std::max(0, heightOf(rest)) - used) / 2, width, used);
    geometry.scroll = scroll ? rectAt(geometry.body.right + 1, geometry.body.top, layout.scrollWidth, used) : NOWHERE;
    geometry.hasAbove = state.top > 0;
    geometry.hasBelow = state.top < state.lastTop;
}

/// Marks stand in the gutter, or where there is none before the text.
void placeColumns(ListGeometry& geometry, const Layout& layout)
{
    const PegRect& body = geometry.body;
    const bool inRow = layout.gutter == 0;
    geometry.marks =
        rectAt(body.left + (inRow ? layout.leftInset : -layout.gutter), body.top, MARK_WIDTH, heightOf(body));
    geometry.texts = rectAt(body.left + layout.leftInset, body.top,
                            widthOf(body) - layout.leftInset - layout.rightInset, heightOf(body));
    geometry.besideMark = geometry.texts;
    if (inRow)
        geometry.besideMark.left = static_cast<std::int16_t>(geometry.texts.left + MARK_WIDTH + MARK_GAP);
}

/// The thumb is to the track as the rows in view are to all. One row alone has the arrows only.
void placeThumb(ListGeometry& geometry, const Layout& layout, const ListState& state)
{
    const PegRect& scroll = geometry.scroll;
    geometry.track = geometry.thumb = NOWHERE;
    if (!layout.scrollBar || state.lastTop == 0)
        return;
    const int track = heightOf(scroll) - 2 * ARROW_HEIGHT;
    if (track < LEAST_THUMB)
        return;
    geometry.track = rectAt(scroll.left + 1, scroll.top + ARROW_HEIGHT, widthOf(scroll) - 1, track);
    const int length = std::max(LEAST_THUMB, track * (state.rows - state.lastTop) / state.rows);
    const int start = (track - length) * state.top / state.lastTop;
    geometry.thumb = rectAt(geometry.track.left, geometry.track.top + start, widthOf(geometry.track), length);
}

/// Every part changes sides.
void mirror(ListGeometry& geometry, const PegRect& area)
{
    for (PegRect* part :
         {&geometry.firstStatusLine, &geometry.titleText, &geometry.ticker, &geometry.body, &geometry.scroll,
          &geometry.track, &geometry.thumb, &geometry.marks, &geometry.texts, &geometry.besideMark})
        *part = isEmpty(*part)
                    ? NOWHERE
                    : rectAt(area.left + area.right - part->right, part->top, widthOf(*part), heightOf(*part));
}

/// In the gutter, or where there is none in the title bar. The arrow stands where the left key is, in whichever
/// direction texts are read.
void placeBack(ListGeometry& geometry, const Layout& layout, const PegRect& area, const ListState& state)
{
    geometry.back = NOWHERE;
    if (!state.back || (state.strip && layout.tickerInTitle))
        return;
    const PegRect beside = isEmpty(geometry.title) ? area : geometry.titleText;
    const int left = area.left + (layout.gutter > 0 ? 0 : layout.leftInset);
    geometry.back = rectAt(left, beside.top, layout.gutter > 0 ? layout.gutter : MARK_WIDTH, heightOf(beside));
    const int clear = geometry.back.right + 1 + (layout.gutter > 0 ? layout.leftInset : MARK_GAP);
    geometry.titleText.left = static_cast<std::int16_t>(std::max<int>(geometry.titleText.left, clear));
}

} // namespace

PegRect ListGeometry::mark(const PegRect& row) const
{
    return beside(row, marks);
}

PegRect ListGeometry::text(const PegRect& row, bool isMarked) const
{
    return beside(row, isMarked ? besideMark : texts);
}

int ListGeometry::statusLines() const
{
    return isEmpty(status) ? 0 : heightOf(status) / heightOf(firstStatusLine);
}

PegRect ListGeometry::statusLine(int line) const
{
    const int height = heightOf(firstStatusLine);
    return rectAt(firstStatusLine.left, firstStatusLine.top + line * height, widthOf(firstStatusLine), height);
}

int heightOfRows(const Layout& layout, const PegRect& area, const ListState& state)
{
    ListGeometry geometry;
    return usedHeight(layout, placeFrame(geometry, layout, area, state));
}

ListGeometry geometryOf(const Layout& layout, const PegRect& area, const ListState& state)
{
    ListGeometry geometry;
    placeBody(geometry, layout, placeFrame(geometry, layout, area, state), state);
    placeColumns(geometry, layout);
    placeThumb(geometry, layout, state);
    if (state.mirrored)
        mirror(geometry, area);
    placeBack(geometry, layout, area, state);
    return geometry;
}

} // namespace host
