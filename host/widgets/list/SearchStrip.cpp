#include "host/widgets/list/SearchStrip.h"

#include "host/lcd/Icons.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Strip.h"

#include <utility>

namespace host {

namespace {

constexpr int AIR = 2; ///< on either side of the icon, and of the numbers

} // namespace

SearchStrip::SearchStrip() : mLine(new EditLine)
{
    Add(mLine, false);
    mLine->setFocus(true);
}

void SearchStrip::setCounts(PegString text)
{
    if (mCounts == text)
        return;
    mCounts = std::move(text);
    Resize(Area());
}

SearchStrip::Parts SearchStrip::parts() const
{
    Strip strip(Area());
    Parts parts;
    parts.icon = strip.fromStart(icons::SEARCH.width() + 2 * AIR);
    const bool hasCounts = !mCounts.empty() && Lcd::current() != nullptr;
    parts.counts = strip.fromEnd(hasCounts ? Lcd::current()->textWidth(Field::font(), mCounts) + 2 * AIR : 0);
    parts.line = strip.rest();
    return parts;
}

/// Also where the area stays: what is in it may have come to stand elsewhere.
void SearchStrip::Resize(const PegRect& area)
{
    Invalidate();
    PegThing::Resize(area);
    mLine->Resize(parts().line);
    Invalidate();
}

void SearchStrip::Draw(PegPainter& painter)
{
    const Parts where = parts();
    painter.fill(Area(), Level::BARE);
    painter.icon(icons::SEARCH, where.icon, Level::DARK);
    if (!isEmpty(where.counts))
        painter.text(where.counts, mCounts, {.font = Field::font(), .align = Align::CENTRE});
}

} // namespace host
