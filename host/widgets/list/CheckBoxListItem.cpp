#include "widgets/CheckBoxListItem.h"

#include "host/lcd/Icons.h"
#include "host/lcd/Painter.h"
#include "utilities/ICC.h"

#include <utility>

CheckBoxListItem::CheckBoxListItem(PegString text) : KestrelListBoxItem(std::move(text)) {}

void CheckBoxListItem::setChecked(bool on)
{
    if (on == mChecked)
        return;
    mChecked = on;
    changed();
    tellChanged();
}

CheckBoxListItem::Description CheckBoxListItem::describe() const
{
    return {"CheckBoxListItem", {DataGet(), ICC::fromUTF8toUNICODE(mChecked ? "checked" : "unchecked")}};
}

bool CheckBoxListItem::hasMark() const
{
    return true;
}

void CheckBoxListItem::drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const
{
    painter.icon(mChecked ? host::icons::BOX_CHECKED : host::icons::BOX, cell,
                 inverted ? host::Level::BARE : host::Level::DARK);
}
