#include "host/widgets/popup/ProgressBar.h"

#include "host/lcd/Painter.h"
#include "host/widgets/Strip.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <string>

namespace host {

namespace {

constexpr int HEIGHT = 10;
constexpr int PADDING = 2; ///< between the frame and what fills it
constexpr int STEPS = 10;
constexpr int GAP = 2; ///< between steps
constexpr int FULL = 100;

/// Room for three digits and the sign.
int numberWidth()
{
    return hasTwoLines() ? 52 : 42;
}

PegRect inside(const PegRect& area, int by)
{
    return rectAt(area.left + by, area.top + by, widthOf(area) - 2 * by, heightOf(area) - 2 * by);
}

} // namespace

bool ProgressBar::setValue(int percent)
{
    const int value = std::clamp(percent, 0, FULL);
    if (value == mValue)
        return false;
    mValue = value;
    Invalidate();
    return true;
}

int ProgressBar::heightFor(int) const
{
    return mKind == Kind::NONE ? 0 : lineHeight();
}

void ProgressBar::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    Strip strip(rectAt(Area().left, Area().top + (heightOf(Area()) - HEIGHT) / 2, widthOf(Area()), HEIGHT));
    switch (mKind) {
    case Kind::NONE: break;
    case Kind::PERCENT: drawNumber(painter, Area(), Align::CENTRE); break;
    case Kind::STEPS: drawSteps(painter, strip.rest()); break;
    case Kind::BAR_AND_PERCENT: {
        const PegRect number = strip.fromEnd(numberWidth());
        drawNumber(painter, rectAt(number.left, Area().top, widthOf(number), heightOf(Area())), endAlign());
        drawBar(painter, strip.rest());
        break;
    }
    case Kind::BAR: drawBar(painter, strip.rest()); break;
    }
}

void ProgressBar::drawBar(PegPainter& painter, const PegRect& area) const
{
    painter.frame(area, Level::DARK);
    Strip strip(inside(area, PADDING));
    painter.fill(strip.fromStart(widthOf(strip.rest()) * mValue / FULL), Level::DARK);
}

/// A step is full when all of it is done.
void ProgressBar::drawSteps(PegPainter& painter, const PegRect& area) const
{
    Strip strip(area);
    const int width = (widthOf(area) + GAP) / STEPS;
    for (int step = 1; step <= STEPS; ++step) {
        const PegRect whole = strip.fromStart(width);
        const PegRect box = Strip(whole).fromStart(width - GAP);
        painter.frame(box, Level::DARK);
        if (mValue * STEPS >= step * FULL)
            painter.fill(inside(box, PADDING), Level::DARK);
    }
}

void ProgressBar::drawNumber(PegPainter& painter, const PegRect& area, Align align) const
{
    painter.text(area, ICC::fromUTF8toUNICODE(std::to_string(mValue) + " %"), {.font = font(), .align = align});
}

} // namespace host
