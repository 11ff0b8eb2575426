#include "host/widgets/popup/DialerField.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int GAP = 4; ///< between the prefix and the edit line

} // namespace

DialerField::DialerField() : mLine(new EditLine)
{
    mLine->setLeft(EditLine::Left::DELETES);
    Add(mLine, false);
}

void DialerField::setPrefix(PegString text)
{
    mPrefix = std::move(text);
    layOut();
}

void DialerField::setSecond(PegString text)
{
    mSecond = std::move(text);
    layOut();
}

void DialerField::setRoomForSecond(bool on)
{
    mRoomForSecond = on;
    layOut();
}

void DialerField::setIgnoresKeypad(bool on)
{
    mIgnoresKeypad = on;
    if (on)
        mLine->released(0);
}

int DialerField::heightFor(int) const
{
    return (hasSecond() ? 2 : 1) * lineHeight();
}

bool DialerField::key(int key)
{
    if (isOfKeypad(key) && mIgnoresKeypad)
        return false;
    if (mLine->key(key))
        return true;
    if (key != PK_LEFT)
        return false;
    tell(PM_LEFT, 0);
    return true;
}

/// At most half of the line is the prefix's, on the side where texts begin.
PegRect DialerField::prefixArea() const
{
    const PegRect& area = Area();
    const int wanted = mPrefix.empty() || Lcd::current() == nullptr ? 0 : Lcd::current()->textWidth(font(), mPrefix);
    const int width = std::min(wanted, widthOf(area) / 2);
    return rectAt(isReadFromTheRight() ? area.right + 1 - width : area.left, area.top, width, lineHeight());
}

PegRect DialerField::secondArea() const
{
    const PegRect& area = Area();
    return hasSecond() ? rectAt(area.left, area.top + lineHeight(), widthOf(area), lineHeight()) : rectAt(0, 0, 0, 0);
}

void DialerField::Resize(const PegRect& area)
{
    PegThing::Resize(area);
    layOut();
}

void DialerField::layOut()
{
    const PegRect& area = Area();
    const PegRect prefix = prefixArea();
    const int taken = isEmpty(prefix) ? 0 : widthOf(prefix) + GAP;
    mLine->Resize(rectAt(area.left + (isReadFromTheRight() ? 0 : taken), area.top, widthOf(area) - taken,
                         std::min(lineHeight(), heightOf(area))));
    Invalidate();
}

void DialerField::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    painter.text(prefixArea(), mPrefix, {.font = font(), .align = startAlign()});
    painter.text(secondArea(), mSecond, {.font = font(), .align = startAlign()});
}

} // namespace host
