#include "variants/telephony/CallLogMainItemPrivate.h"

#include "host/variants/telephony/CallLogIcons.h"
#include "host/variants/telephony/LogRow.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallLogEntry& entry)
{
    LogLines lines;
    lines.addParty(entry.party, iconOf(static_cast<CallLogMainItem::IconType>(entry.icon)));
    lines.look.lines.front().bold = entry.isNew;
    lines.look.end = ICC::fromUTF8toUNICODE(entry.text);
    if (entry.hasMenu)
        lines.look.marks.push_back(&host::icons::MORE);
    return lines;
}

} // namespace

/// Log entries look alike on both panels; what differs is the list's.
CallLogMainItemSide::CallLogMainItemSide(const CallLogEntry& entry, Panel)
    : LogRowSide(std::make_unique<LogRow>("CallLogMainItem", linesOf(entry)))
{
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
    row().setBold(on);
}

} // namespace DisplayAPI
