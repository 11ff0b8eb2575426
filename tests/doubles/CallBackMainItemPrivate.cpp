#include "variants/telephony/CallBackMainItemPrivate.h"

#include "doubles/LogRow.h"

namespace DisplayAPI {

CallBackMainItemSide::CallBackMainItemSide(const CallPartyIdentifier* party, std::string text,
                                           CallBackMainItem::CallBackType type, CallBackMainItem::CallBackState state,
                                           Panel panel)
    : LogRowSide(std::make_unique<LogRow>("CallBackMainItemPrivate", panel, party))
{
    row().made(saidOf(party), text, static_cast<int>(type), static_cast<int>(state));
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
