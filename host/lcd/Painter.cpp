#include "host/lcd/Painter.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/TextMap.h"
#include "host/lcd/TextRenderer.h"
#include "toolkit/PegThing.h"
#include "utilities/ICC.h"

#include <bit>
#include <cstring>

using namespace host;

namespace {

/// How far the base line lies above the bottom of a line of text, and how high such a line is.
struct LineBox {
    int height;
    int descent;
};

LineBox lineBox(Font font)
{
    const bool fixed = font == Font::FIXED || font == Font::FIXED_BOLD;
    return fixed ? LineBox{16, 4} : LineBox{14, 2};
}

int baseLine(Font font, const PegRect& cell)
{
    const LineBox box = lineBox(font);
    return cell.top + (heightOf(cell) - box.height) / 2 + box.height - box.descent;
}

int startOf(Align align, const PegRect& cell, int width)
{
    const int spare = widthOf(cell) - width;
    switch (align) {
    case Align::LEFT: return cell.left;
    case Align::CENTRE: return cell.left + spare / 2;
    case Align::RIGHT: return cell.left + spare;
    }
    return cell.left;
}

/// The row's pixels from the first one to the last one, at `to` and behind it.
void stencilRow(std::span<const TextMask::Word> row, int first, int last, std::uint8_t* to, Level level)
{
    constexpr int BITS = TextMask::WORD_BITS;
    for (int word = first / BITS; word <= last / BITS; ++word) {
        const int left = word * BITS;
        TextMask::Word ink = row[static_cast<std::size_t>(word)];
        if (first > left)
            ink &= ~TextMask::Word{0} << (first - left);
        if (last - left < BITS - 1)
            ink &= (TextMask::Word{1} << (last - left + 1)) - 1;
        for (; ink != 0; ink &= ink - 1)
            to[left + std::countr_zero(ink) - first] = static_cast<std::uint8_t>(level);
    }
}

std::string wholeText(const PegString& text)
{
    if (text.length() <= TextRun::MAX_LENGTH)
        return ICC::fromUNICODEtoUTF8(text);
    return ICC::fromUNICODEtoUTF8(PegString(text.data(), TextRun::MAX_LENGTH));
}

TextRun runOf(const PegRect& area, const PegString& text, const TextLook& look, const TextMask& mask)
{
    return {.area = area,
            .text = wholeText(text),
            .inverted = look.inverted,
            .cut = mask.cut || text.length() > TextRun::MAX_LENGTH,
            .lacksGlyph = mask.lacksGlyph,
            .runs = look.runs};
}

} // namespace

Level host::inkOf(const TextLook& look)
{
    if (look.dimmed)
        return look.inverted ? Level::LIGHT : Level::MIDDLE;
    return look.inverted ? Level::BARE : Level::DARK;
}

PegPainter::PegPainter(FrameBuffer& buffer, TextMap& texts, TextRenderer& renderer, const PegRect& clip)
    : mBuffer(buffer), mTexts(texts), mRenderer(renderer),
      mClip(intersection(clip, rectAt(0, 0, buffer.width(), buffer.height())))
{
}

PegPainter PegPainter::clippedTo(const PegRect& area) const
{
    PegPainter part = *this;
    part.mClip = intersection(mClip, area);
    return part;
}

PegPainter PegPainter::paintingFor(const PegThing& thing) const
{
    PegPainter own = clippedTo(thing.Area());
    own.mWidget = thing.Type();
    return own;
}

bool PegPainter::isClippedOut(const PegRect& area) const
{
    return !overlap(mClip, area);
}

void PegPainter::fill(const PegRect& area, Level level)
{
    mTexts.cover(area, mClip);
    fillClipped(area, level);
}

void PegPainter::frame(const PegRect& area, Level level)
{
    fillClipped({area.left, area.top, area.right, area.top}, level);
    fillClipped({area.left, area.bottom, area.right, area.bottom}, level);
    fillClipped({area.left, area.top, area.left, area.bottom}, level);
    fillClipped({area.right, area.top, area.right, area.bottom}, level);
}

void PegPainter::fillClipped(const PegRect& area, Level level)
{
    const PegRect part = intersection(area, mClip);
    if (isEmpty(part))
        return;
    for (int y = part.top; y <= part.bottom; ++y)
        std::memset(mBuffer.at(part.left, y), static_cast<int>(level), static_cast<std::size_t>(widthOf(part)));
}

void PegPainter::icon(const Icon& icon, const PegRect& cell, Level level)
{
    const int left = cell.left + (widthOf(cell) - icon.width()) / 2;
    const int top = cell.top + (heightOf(cell) - icon.height()) / 2;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            if (icon.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#')
                fillClipped(rectAt(left + x, top + y, 1, 1), level);
        }
    }
}

void PegPainter::picture(const Picture& picture, const PegRect& cell)
{
    const PegRect box = rectAt(cell.left + (widthOf(cell) - picture.width) / 2,
                               cell.top + (heightOf(cell) - picture.height) / 2, picture.width, picture.height);
    const PegRect part = intersection(intersection(box, cell), mClip);
    if (isEmpty(part))
        return;
    mTexts.cover(part, mClip);
    for (int y = part.top; y <= part.bottom; ++y) {
        const auto from = static_cast<std::size_t>((y - box.top) * picture.width + part.left - box.left);
        std::memcpy(mBuffer.at(part.left, y), &picture.pixels[from], static_cast<std::size_t>(widthOf(part)));
    }
}

void PegPainter::text(const PegRect& cell, const PegString& text, const TextLook& look)
{
    if (text.empty() || isClippedOut(cell))
        return;
    const TextMask& mask = mRenderer.mask(look.font, text, widthOf(cell));
    const PegRect box = rectAt(startOf(look.align, cell, mask.width), baseLine(look.font, cell) - TextMask::ASCENT,
                               mask.width, TextMask::HEIGHT);
    const PegRect visible = intersection(box, cell);
    if (isClippedOut(visible))
        return;
    stencil(mask, box, inkOf(look), cell);
    note(runOf(visible, text, look, mask));
}

void PegPainter::scrolledText(const PegRect& cell, const PegString& text, const TextLook& look, int gone, int gap)
{
    if (text.empty() || isClippedOut(cell))
        return;
    const TextMask& mask = mRenderer.mask(look.font, text, TextMask::MAX_WIDTH);
    const int way = mask.rightToLeft ? -1 : 1;
    const int first = startOf(mask.rightToLeft ? Align::RIGHT : Align::LEFT, cell, mask.width) - way * gone;
    const int top = baseLine(look.font, cell) - TextMask::ASCENT;
    const PegRect box = rectAt(first, top, mask.width, TextMask::HEIGHT);
    const bool fits = mask.width <= widthOf(cell);
    const PegRect again = fits ? box : rectAt(first + way * (mask.width + gap), top, mask.width, TextMask::HEIGHT);
    const PegRect visible = intersection(boundsOf(box, again), cell);
    if (isClippedOut(visible))
        return;
    for (const PegRect& place : {box, again})
        stencil(mask, place, inkOf(look), cell);
    note(runOf(visible, text, look, mask));
}

int PegPainter::textWidth(const PegString& text, Font font, int most)
{
    return text.empty() ? 0 : mRenderer.mask(font, text, most).width;
}

bool PegPainter::beginsAtTheRight(const PegString& text, Font font)
{
    return !text.empty() && mRenderer.mask(font, text, TextMask::MAX_WIDTH).rightToLeft;
}

void PegPainter::note(TextRun run)
{
    run.widget = mWidget;
    mTexts.add(std::move(run));
}

void PegPainter::stencil(const TextMask& mask, const PegRect& box, Level level, const PegRect& limits)
{
    const PegRect part = intersection(intersection(box, limits), mClip);
    const int first = part.left - box.left, last = part.right - box.left;
    for (int y = part.top; first <= last && y <= part.bottom; ++y)
        stencilRow(mask.row(y - box.top), first, last, mBuffer.at(part.left, y), level);
}
