#include "apps/deskphone/LineRow.h"

#include <utility>

namespace deskphone {

using DisplayAPI::LineOverviewItem;

namespace {

constexpr int AS_LONG_AS_IT_IS = exchange::LONGEST_TIME;
constexpr int NO_MORE = 0;

} // namespace

LineRow::LineRow(exchange::LineNumber line, const std::string& name, const Look& look)
    : mLine(line), mItem(new LineOverviewItem(LineOverviewItem::IDLE, name, look.identity, look.prefix)),
      mShown{LineOverviewItem::IDLE, look.prefix, look.identity}
{
    show(look);
}

void LineRow::show(const Look& look)
{
    const Look former = std::exchange(mShown, look);
    if (former.prefix != look.prefix)
        mItem->setLineNamePrefix(look.prefix);
    if (former.identity != look.identity)
        mItem->setLineIdentity(look.identity);
    if (former.state == look.state)
        return;
    mItem->setLineState(look.state);
    mItem->holdItem(look.state == LineOverviewItem::HELD ? AS_LONG_AS_IT_IS : NO_MORE);
}

} // namespace deskphone
