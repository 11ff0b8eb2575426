#include "host/widgets/form/SliderField.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "utilities/ICC.h"

namespace host {

namespace {

constexpr int BAR_HEIGHT = 8;
constexpr int BAR_PADDING = 2; ///< between the frame and what fills it
constexpr int FULL = 100;

/// Room for five characters.
int numberWidth()
{
    return hasTwoLines() ? 44 : 36;
}

} // namespace

void SliderField::setLeast(const Decimal& value)
{
    mLeast = value;
    setNumber(mNumber);
}

void SliderField::setMost(const Decimal& value)
{
    mMost = value;
    setNumber(mNumber);
}

void SliderField::setNumber(const Decimal& value)
{
    mNumber = value < mLeast ? mLeast : value;
    if (mMost < mNumber)
        mNumber = mMost;
    Invalidate();
}

PegString SliderField::value() const
{
    return ICC::fromUTF8toUNICODE(mNumber.text());
}

/// Also at an end: who holds the key does not leave the form by it.
bool SliderField::key(int key)
{
    if (isLocked() || (key != PK_LEFT && key != PK_RIGHT))
        return false;
    return step((key == PK_RIGHT) != isReadFromTheRight());
}

/// An end may have other decimals than the number that was there.
bool SliderField::step(bool up)
{
    const std::string before = mNumber.text();
    setNumber(up ? mNumber.plus(mInterval) : mNumber.minus(mInterval));
    if (mNumber.text() != before)
        tellValueChanged();
    return true;
}

/// A cell that is too narrow for both has the number alone.
void SliderField::drawValue(PegPainter& painter, const PegRect& cell) const
{
    Strip strip(cell);
    const bool hasBar = widthOf(cell) >= 2 * numberWidth();
    const PegRect number = hasBar ? strip.fromEnd(numberWidth()) : cell;
    painter.text(number, value(), {.font = font(), .align = endAlign(), .inverted = hasFocus()});
    if (!hasBar)
        return;
    const PegRect bar =
        rectAt(strip.rest().left, cell.top + (heightOf(cell) - BAR_HEIGHT) / 2, widthOf(strip.rest()), BAR_HEIGHT);
    painter.frame(bar, ink());
    Strip inside(rectAt(bar.left + BAR_PADDING, bar.top + BAR_PADDING, widthOf(bar) - 2 * BAR_PADDING,
                        BAR_HEIGHT - 2 * BAR_PADDING));
    painter.fill(inside.fromStart(widthOf(inside.rest()) * mNumber.percentOf(mLeast, mMost) / FULL), ink());
}

} // namespace host
