#include "host/widgets/form/FormField.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"

#include <algorithm>

namespace host {

namespace {

constexpr int PADDING = 4; ///< on either side
constexpr int ICON_WIDTH = 14;
constexpr int WHOLE = 100; ///< hundredths
constexpr int GAP = 2;     ///< between label and value

} // namespace

void FormField::setLabelShare(int percent)
{
    mShare = std::clamp(percent, 0, WHOLE);
    valueMoved();
    Invalidate();
}

void FormField::setLabel(PegString label)
{
    const bool wasAbove = isLabelAbove();
    mLabel = std::move(label);
    valueMoved();
    Invalidate();
    if (mHolder != nullptr && isLabelAbove() != wasAbove)
        mHolder->heightsChanged();
}

void FormField::setIcon(const Icon* icon)
{
    mIcon = icon;
    valueMoved();
    Invalidate();
}

void FormField::setReadOnly(bool on)
{
    mReadOnly = on;
    lockChanged();
    Invalidate();
}

void FormField::setFormReadOnly(bool on)
{
    mFormReadOnly = on;
    lockChanged();
    Invalidate();
}

void FormField::setHolder(FormFieldHolder* holder)
{
    if (mHolder != nullptr && mHolder != holder)
        leaving();
    mHolder = holder;
}

bool FormField::isLabelAbove() const
{
    return mShare == WHOLE && !hasTwoLines() && !mLabel.empty();
}

int FormField::heightFor(int) const
{
    return lineHeight() * (isLabelAbove() ? 2 : 1);
}

/// A field without a label has the whole line for its value.
FormField::Parts FormField::parts() const
{
    const PegRect& all = Area();
    const PegRect inner = rectAt(all.left + PADDING, all.top, widthOf(all) - 2 * PADDING, heightOf(all));
    const int share = mShare == WHOLE ? WHOLE / 2 : mShare;
    Strip line(rectAt(inner.left, inner.top, widthOf(inner), lineHeight()));
    Parts parts;
    parts.icon = line.fromStart(mIcon != nullptr ? ICON_WIDTH : 0);
    parts.label = line.rest();
    parts.value = line.rest();
    if (isLabelAbove()) {
        parts.value = rectAt(inner.left, inner.top + lineHeight(), widthOf(inner), lineHeight());
    } else if (!mLabel.empty()) {
        parts.label = line.fromStart(widthOf(line.rest()) * share / WHOLE - GAP);
        line.fromStart(GAP);
        parts.value = line.rest();
    }
    return parts;
}

void FormField::Draw(PegPainter& painter)
{
    const Parts where = parts();
    painter.fill(Area(), hasFocus() ? Level::DARK : Level::BARE);
    if (mIcon != nullptr)
        painter.icon(*mIcon, where.icon, ink());
    if (!mLabel.empty())
        painter.text(where.label, mLabel, {.font = font(), .align = startAlign(), .inverted = hasFocus()});
    drawValue(painter, where.value);
}

TextLook FormField::valueLook() const
{
    const bool atTheEnd = !mLabel.empty() && !isLabelAbove();
    return {.font = font(), .align = atTheEnd ? endAlign() : startAlign(), .inverted = hasFocus()};
}

void FormField::drawValue(PegPainter& painter, const PegRect& cell) const
{
    painter.text(cell, value(), valueLook());
}

void FormField::tellValueChanged()
{
    if (mHolder != nullptr)
        mHolder->valueChanged(*this);
}

void FormField::tellLookChanged()
{
    if (mHolder != nullptr)
        mHolder->lookChanged();
}

} // namespace host
