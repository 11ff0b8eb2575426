#include "widgets/PhonebookListItem.h"

#include "host/widgets/telephony/LinesRow.h"
#include "host/widgets/telephony/PhonebookIcons.h"

#include <utility>

PhonebookListItem::PhonebookListItem(PegString text, int icon, bool bold)
    : KestrelListBoxItem(std::move(text)), mIcon(icon), mBold(bold)
{
}

void PhonebookListItem::Draw(PegPainter& painter, const Place& place) const
{
    host::LinesLook look;
    look.lines.front() = {.text = DataGet(), .icon = host::phonebookIcon(mIcon), .bold = mBold};
    host::draw(painter, place, look);
}

PhonebookListItem::Description PhonebookListItem::describe() const
{
    return {"PhonebookListItem", {DataGet()}};
}
