#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/list/ListBoxImpl.h"
#include "widgets/KestrelListBoxItem.h"

using namespace host;

namespace {

constexpr int PICTURE_GAP = 4;
constexpr int TITLE_END_GAP = 6;

/// The selection bar, its corners rounded by a pixel.
void drawBar(PegPainter& painter, const PegRect& row)
{
    painter.fill(row, Level::DARK);
    for (const auto x : {row.left, row.right}) {
        for (const auto y : {row.top, row.bottom})
            painter.fill({x, y, x, y}, Level::BARE);
    }
}

/// The upper or lower end of a scroll mark.
PegRect arrowCell(const PegRect& scroll, bool upper)
{
    constexpr int HEIGHT = 8;
    return rectAt(scroll.left, upper ? scroll.top : scroll.bottom + 1 - HEIGHT, widthOf(scroll), HEIGHT);
}

} // namespace

void KestrelListBox::Draw(PegPainter& painter)
{
    const ListView& view = mImpl->view();
    painter.fill(Area(), Level::BARE);
    mImpl->drawStatus(painter, view.parts);
    mImpl->drawTitle(painter, view.parts);
    for (const RowInView& row : view.rows)
        mImpl->drawRow(painter, view, row);
    mImpl->drawScroll(painter, view.parts);
    mImpl->drawTickerRule(painter, view.parts);
}

void KestrelListBox::Impl::drawStatus(PegPainter& painter, const ListGeometry& parts) const
{
    if (isEmpty(parts.status) || painter.isClippedOut(parts.status))
        return;
    for (int line = 0; line < parts.statusLines(); ++line)
        drawStatusLine(painter, parts.statusLine(line), status.text(line), layout.font,
                       line == 0 ? statusTime() : nullptr);
    painter.fill({parts.status.left, parts.status.bottom, parts.status.right, parts.status.bottom}, Level::DARK);
}

void KestrelListBox::Impl::drawTitle(PegPainter& painter, const ListGeometry& parts) const
{
    if (!isEmpty(parts.title) && !painter.isClippedOut(parts.title)) {
        const PegRect& bar = parts.title;
        const bool hidden = overlap(parts.ticker, bar) || overlap(parts.strip, bar);
        const auto line = static_cast<std::int16_t>(bar.bottom - 1);
        painter.fill({bar.left, bar.top, bar.right, line}, hidden ? Level::BARE : Level::LIGHT);
        painter.fill({bar.left, line, bar.right, line}, Level::DARK);
        if (!hidden)
            drawTitleText(painter, parts.titleText);
    }
    if (!isEmpty(parts.back))
        painter.icon(icons::BACK, parts.back, Level::DARK);
}

void KestrelListBox::Impl::drawTitleText(PegPainter& painter, const PegRect& cell) const
{
    Strip strip(cell);
    if (titlePicture != nullptr) {
        painter.icon(titlePicture->icon, strip.fromStart(titlePicture->icon.width()), Level::DARK);
        strip.fromStart(PICTURE_GAP);
    }
    if (!titleEnd.empty())
        painter.text(strip.fromEnd(Lcd::current()->textWidth(layout.font, titleEnd)), titleEnd,
                     {layout.font, endAlign()});
    strip.fromEnd(titleEnd.empty() ? 0 : TITLE_END_GAP);
    painter.text(strip.rest(), title, {layout.titleFont, startAlign()});
}

void KestrelListBox::Impl::drawRow(PegPainter& painter, const ListView& view, const RowInView& row) const
{
    if (painter.isClippedOut(view.areaWithMark(row)))
        return;
    if (row.inverted)
        drawBar(painter, row.area);
    if (row.framed)
        painter.frame(row.area, Level::MIDDLE);
    if (row.hasMark) {
        const PegRect cell = view.parts.mark(row.area);
        PegPainter inside = painter.clippedTo(cell);
        row.item->drawMark(inside, cell, row.inverted && contains(row.area, cell));
    }
    PegPainter inside = painter.clippedTo(row.area);
    row.item->Draw(inside, {layout, row.area, textOf(row), row.inverted});
}

void KestrelListBox::Impl::drawScroll(PegPainter& painter, const ListGeometry& parts) const
{
    if (isEmpty(parts.scroll) || painter.isClippedOut(parts.scroll))
        return;
    if (parts.hasAbove)
        painter.icon(layout.scrollBar ? icons::ARROW_UP : icons::SMALL_ARROW_UP, arrowCell(parts.scroll, true),
                     Level::DARK);
    if (parts.hasBelow)
        painter.icon(layout.scrollBar ? icons::ARROW_DOWN : icons::SMALL_ARROW_DOWN, arrowCell(parts.scroll, false),
                     Level::DARK);
    if (isEmpty(parts.track))
        return;
    painter.fill(parts.track, Level::LIGHT);
    painter.fill(parts.thumb, Level::DARK);
}

void KestrelListBox::Impl::drawTickerRule(PegPainter& painter, const ListGeometry& parts) const
{
    const auto line = static_cast<std::int16_t>(parts.ticker.top - 1);
    if (!isEmpty(parts.ticker) && !layout.tickerInTitle)
        painter.fill({parts.ticker.left, line, parts.ticker.right, line}, Level::LIGHT);
}
