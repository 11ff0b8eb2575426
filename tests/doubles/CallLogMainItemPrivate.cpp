#include "variants/telephony/CallLogMainItemPrivate.h"

#include "doubles/LogRow.h"

namespace DisplayAPI {

CallLogMainItemSide::CallLogMainItemSide(const CallLogEntry& entry, Panel panel)
    : LogRowSide(std::make_unique<LogRow>("CallLogMainItemPrivate", panel, entry.party))
{
    row().made(saidOf(entry.party), entry.text, entry.icon, entry.isNew, entry.hasMenu);
}

CallLogMainItemPrivate::CallLogMainItemPrivate(CallPartyIdentifier* party, std::string text, int icon, bool isNew,
                                               bool hasMenu)
    : CallLogMainItemSide({party, std::move(text), icon, isNew, hasMenu}, Panel::FULL)
{
}

CallLogMainItemPrivateWP1::CallLogMainItemPrivateWP1(CallPartyIdentifier* party, std::string text, int icon, bool isNew,
                                                     bool hasMenu)
    : CallLogMainItemSide({party, std::move(text), icon, isNew, hasMenu}, Panel::SMALL)
{
}

void CallLogMainItemSide::setbold(bool on)
{
    row().note("setbold", on);
}

} // namespace DisplayAPI
