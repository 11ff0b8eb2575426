#include "variants/telephony/ConferenceCallItemPrivate.h"

#include "DisplayAPI/ConferenceCallItem.h"
#include "doubles/Answers.h"
#include "doubles/CallSide.h"

namespace DisplayAPI {

/// The recording conference.
struct ConferenceCallItemSide::Conference : CallConnectedItemSide::Call {
    template <typename Text>
    Conference(Panel panel, CallConnectedItem::CallStateIcon state, Text text, ConferenceCallItem* owner, bool open)
        : Call("ConferenceCallItemPrivate", panel)
    {
        made(static_cast<int>(state), text, static_cast<Widget*>(owner), open);
    }
};

ConferenceCallItemSide::ConferenceCallItemSide(std::unique_ptr<Conference> conference)
    : CallConnectedItemSide(std::move(conference))
{
}

ConferenceCallItemPrivate::ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, std::string text,
                                                     ConferenceCallItem* owner, bool open)
    : ConferenceCallItemSide(std::make_unique<Conference>(Panel::FULL, state, text, owner, open))
{
}

ConferenceCallItemPrivate::ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text,
                                                     ConferenceCallItem* owner, bool open)
    : ConferenceCallItemSide(std::make_unique<Conference>(Panel::FULL, state, text, owner, open))
{
}

ConferenceCallItemPrivateWP1::ConferenceCallItemPrivateWP1(CallConnectedItem::CallStateIcon state, std::string text,
                                                           ConferenceCallItem* owner, bool open)
    : ConferenceCallItemSide(std::make_unique<Conference>(Panel::SMALL, state, text, owner, open))
{
}

ConferenceCallItemPrivateWP1::ConferenceCallItemPrivateWP1(CallConnectedItem::CallStateIcon state,
                                                           TranslationInfo* text, ConferenceCallItem* owner, bool open)
    : ConferenceCallItemSide(std::make_unique<Conference>(Panel::SMALL, state, text, owner, open))
{
}

ConferenceCallItemSide::Conference& ConferenceCallItemSide::conference()
{
    return static_cast<Conference&>(call());
}

void ConferenceCallItemSide::setTitleSuffix(const std::string& suffix, TranslationInfo* translation)
{
    conference().note("setTitleSuffix", suffix, translation);
}

void ConferenceCallItemSide::appendCall(CallConnectedItem* call, bool isTitle)
{
    conference().note("appendCall", call, isTitle);
}

void ConferenceCallItemSide::removeCall(CallConnectedItem* call)
{
    conference().note("removeCall", call);
}

void ConferenceCallItemSide::removeCall(int index)
{
    conference().note("removeCall", index);
}

void ConferenceCallItemSide::setCallItem(int index)
{
    conference().note("setCallItem", index);
}

CallConnectedItem* ConferenceCallItemSide::getSelectedMember()
{
    conference().note("getSelectedMember");
    return doubles::Answers::instance().call;
}

CallConnectedItem* ConferenceCallItemSide::getTitleMember()
{
    conference().note("getTitleMember");
    return doubles::Answers::instance().call;
}

CallConnectedItem* ConferenceCallItemSide::getIndexedMember(int index)
{
    conference().note("getIndexedMember", index);
    return doubles::Answers::instance().call;
}

} // namespace DisplayAPI
