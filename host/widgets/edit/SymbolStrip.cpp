#include "host/widgets/edit/SymbolStrip.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Strip.h"
#include "host/widgets/edit/Utf16.h"
#include "toolkit/PegMessage.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <string>

namespace host {

namespace {

constexpr int MOST_SYMBOL_WIDTH = 22;
constexpr int PAGE_NUMBER_WIDTH = 26;
constexpr int OVERHANG = 2; ///< of a symbol that is wider than its place

} // namespace

void SymbolStrip::open(std::u16string_view symbols)
{
    mSymbols = symbols;
    mCurrent = 0;
}

char16_t SymbolStrip::key(int key)
{
    const int forward = isReadFromTheRight() ? -1 : 1;
    switch (key) {
    case PK_LEFT: step(-forward); return 0;
    case PK_RIGHT: step(forward); return 0;
    case PK_UP: turn(-1); return 0;
    case PK_DOWN: turn(1); return 0;
    case PK_OK: return take(mCurrent);
    case PK_STAR:
        if (page() + 1 == pages())
            close();
        else
            turn(1);
        return 0;
    case PK_HASH: close(); return 0;
    case PK_0: return take((page() + 1) * ON_A_PAGE - 1);
    default: return key > PK_0 && key <= PK_9 ? take(page() * ON_A_PAGE + static_cast<std::size_t>(key - '1')) : u'\0';
    }
}

char16_t SymbolStrip::take(std::size_t index)
{
    if (index >= mSymbols.size())
        return 0;
    const char16_t taken = mSymbols[index];
    close();
    return taken;
}

/// Round at the ends.
void SymbolStrip::step(int by)
{
    mCurrent = (mCurrent + mSymbols.size() + static_cast<std::size_t>(by)) % mSymbols.size();
}

void SymbolStrip::turn(int by)
{
    mCurrent = (page() + pages() + static_cast<std::size_t>(by)) % pages() * ON_A_PAGE;
}

void SymbolStrip::draw(PegPainter& painter, const PegRect& cell, Font font) const
{
    painter.fill(cell, Level::BARE);
    Strip strip(cell);
    if (pages() > 1) {
        const std::string number = std::to_string(page() + 1) + '/' + std::to_string(pages());
        painter.text(strip.fromEnd(PAGE_NUMBER_WIDTH), ICC::fromUTF8toUNICODE(number),
                     {.font = font, .align = endAlign()});
    }
    drawPage(painter, strip.rest(), font);
}

void SymbolStrip::drawPage(PegPainter& painter, const PegRect& cell, Font font) const
{
    const int width = std::min(widthOf(cell) / static_cast<int>(ON_A_PAGE), MOST_SYMBOL_WIDTH);
    const std::size_t first = page() * ON_A_PAGE;
    Strip strip(cell);
    for (std::size_t index = first; index < std::min(first + ON_A_PAGE, mSymbols.size()); ++index) {
        const PegRect place = strip.fromStart(width);
        const bool isCurrent = index == mCurrent;
        if (isCurrent)
            painter.fill(place, Level::DARK);
        const PegRect room = rectAt(place.left - OVERHANG, place.top, width + 2 * OVERHANG, heightOf(place));
        painter.text(room, toPegString(mSymbols.substr(index, 1)),
                     {.font = font, .align = Align::CENTRE, .inverted = isCurrent});
    }
}

} // namespace host
