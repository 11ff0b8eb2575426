#include "host/widgets/status/StatusStrip.h"

#include "host/lcd/Geometry.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int LEFT_INSET = 6; ///< as in lists
constexpr int RIGHT_INSET = 3;

} // namespace

void StatusStrip::setLines(int lines)
{
    if (mStatus.setSize(lines))
        update();
}

void StatusStrip::setText(int line, std::string text)
{
    if (!mStatus.setText(line, std::move(text)))
        return;
    update();
    if (line < lines())
        Invalidate(lineArea(line));
}

void StatusStrip::statusTimeChanged()
{
    update();
    if (lines() > 0)
        Invalidate(lineArea(0));
}

/// On its way out there may be nobody any more who could be told.
void StatusStrip::VisibilityChanged()
{
    if (StatusIs(PSF_VISIBLE))
        update();
    else
        StatusTime::watch(*this, false);
}

/// The time alone keeps line 0 in sight.
void StatusStrip::update()
{
    const bool timed = mStatus.size() > 0 && statusTime() != nullptr && !statusTime()->text().empty();
    const int shown = std::max(mStatus.used(), timed ? 1 : 0);
    StatusTime::watch(*this, mStatus.size() > 0 && StatusIs(PSF_VISIBLE));
    if (std::exchange(mShown, shown) != shown)
        mResized();
}

int StatusStrip::lines() const
{
    return std::clamp(mShown, 0, std::max(0, mMost));
}

int StatusStrip::height() const
{
    return lines() > 0 ? lines() * LINE_HEIGHT + RULE : 0;
}

PegRect StatusStrip::lineArea(int line) const
{
    return rectAt(Area().left, Area().top + line * LINE_HEIGHT, widthOf(Area()), LINE_HEIGHT);
}

void StatusStrip::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    for (int line = 0; line < lines(); ++line) {
        const PegRect whole = lineArea(line);
        const PegRect cell =
            rectAt(whole.left + LEFT_INSET, whole.top, widthOf(whole) - LEFT_INSET - RIGHT_INSET, heightOf(whole));
        drawStatusLine(painter, cell, text(line), Font::TEXT, line == 0 ? statusTime() : nullptr);
    }
    painter.fill(rectAt(Area().left, Area().bottom, widthOf(Area()), RULE), Level::DARK);
}

} // namespace host
