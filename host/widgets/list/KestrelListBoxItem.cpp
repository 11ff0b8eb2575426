#include "widgets/KestrelListBoxItem.h"

#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/list/ListLayout.h"

#include <utility>

using namespace host;

KestrelListBoxItem::KestrelListBoxItem(PegString text) : mText(std::move(text)) {}

KestrelListBoxItem::~KestrelListBoxItem()
{
    if (mList != nullptr)
        mList->remove(this);
}

int KestrelListBoxItem::row() const
{
    return mList != nullptr ? mList->rowOf(this) : -1;
}

void KestrelListBoxItem::DataSet(PegString text)
{
    mText = std::move(text);
    changed();
}

int KestrelListBoxItem::heightIn(const Layout& layout) const
{
    return layout.rowHeight;
}

void KestrelListBoxItem::Draw(PegPainter& painter, const Place& place) const
{
    painter.text(place.text, mText, {place.layout.font, startAlign(), place.inverted});
}

KestrelListBoxItem::Description KestrelListBoxItem::describe() const
{
    return {"KestrelListBoxItem", {mText}};
}

bool KestrelListBoxItem::key(int)
{
    return false;
}

bool KestrelListBoxItem::hasMark() const
{
    return false;
}

void KestrelListBoxItem::drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const
{
    painter.icon(mMarked ? icons::RADIO_CHOSEN : icons::RADIO, cell, inverted ? Level::BARE : Level::DARK);
}

PegString KestrelListBoxItem::wayBackText()
{
    constexpr PegChar ARROW = 0x2190;
    return {&ARROW, 1};
}

void KestrelListBoxItem::changed()
{
    if (mList != nullptr)
        mList->itemChanged(this);
}

void KestrelListBoxItem::changed(const KestrelListBox::Part& part)
{
    if (mList != nullptr)
        mList->itemChanged(this, part);
}

void KestrelListBoxItem::tellChanged()
{
    if (mList != nullptr)
        mList->tellItemChanged(this);
}

void KestrelListBoxItem::heightChanged()
{
    if (mList != nullptr)
        mList->itemHeightChanged(this);
}
