#include "variants/telephony/CallBackMainItemPrivate.h"

#include "host/variants/telephony/CallLogIcons.h"
#include "host/variants/telephony/LogRow.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallPartyIdentifier* party, const std::string& text, CallBackMainItem::CallBackType type,
                 CallBackMainItem::CallBackState state)
{
    LogLines lines;
    lines.addParty(party, &host::icons::CALLBACK);
    lines.look.end = ICC::fromUTF8toUNICODE(text);
    for (const host::Icon* mark : {iconOf(type), iconOf(state)})
        if (mark != nullptr)
            lines.look.marks.push_back(mark);
    return lines;
}

} // namespace

/// Call-backs look alike on both panels; what differs is the list's.
CallBackMainItemSide::CallBackMainItemSide(const CallPartyIdentifier* party, std::string text,
                                           CallBackMainItem::CallBackType type, CallBackMainItem::CallBackState state,
                                           Panel)
    : LogRowSide(std::make_unique<LogRow>("CallBackMainItem", linesOf(party, text, type, state)))
{
}

CallBackMainItemPrivate::CallBackMainItemPrivate(CallPartyIdentifier* party, std::string text,
                                                 CallBackMainItem::CallBackType type,
                                                 CallBackMainItem::CallBackState state)
    : CallBackMainItemSide(party, std::move(text), type, state, Panel::FULL)
{
}

CallBackMainItemPrivateWP1::CallBackMainItemPrivateWP1(CallPartyIdentifier* party, std::string text,
                                                       CallBackMainItem::CallBackType type,
                                                       CallBackMainItem::CallBackState state)
    : CallBackMainItemSide(party, std::move(text), type, state, Panel::SMALL)
{
}

} // namespace DisplayAPI
