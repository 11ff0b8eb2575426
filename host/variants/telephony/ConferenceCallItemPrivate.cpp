#include "variants/telephony/ConferenceCallItemPrivate.h"

#include "host/variants/telephony/Conference.h"

namespace DisplayAPI {

namespace {

using State = CallConnectedItem::CallStateIcon;

template <typename Conference>
std::unique_ptr<Conference> newConference(Panel panel, State state, OwnedText text, bool open)
{
    auto conference = std::make_unique<Conference>(std::move(text), open, panel);
    conference->setState(state);
    return conference;
}

} // namespace

ConferenceCallItemSide::ConferenceCallItemSide(std::unique_ptr<Conference> conference)
    : CallConnectedItemSide(std::move(conference))
{
}

ConferenceCallItemPrivate::ConferenceCallItemPrivate(State state, std::string text, ConferenceCallItem*, bool open)
    : ConferenceCallItemSide(newConference<Conference>(Panel::FULL, state, OwnedText(std::move(text)), open))
{
}

ConferenceCallItemPrivate::ConferenceCallItemPrivate(State state, TranslationInfo* text, ConferenceCallItem*, bool open)
    : ConferenceCallItemSide(newConference<Conference>(Panel::FULL, state, OwnedText(TranslatedText(text)), open))
{
}

ConferenceCallItemPrivateWP1::ConferenceCallItemPrivateWP1(State state, std::string text, ConferenceCallItem*,
                                                           bool open)
    : ConferenceCallItemSide(newConference<Conference>(Panel::SMALL, state, OwnedText(std::move(text)), open))
{
}

ConferenceCallItemPrivateWP1::ConferenceCallItemPrivateWP1(State state, TranslationInfo* text, ConferenceCallItem*,
                                                           bool open)
    : ConferenceCallItemSide(newConference<Conference>(Panel::SMALL, state, OwnedText(TranslatedText(text)), open))
{
}

ConferenceCallItemSide::Conference& ConferenceCallItemSide::conference()
{
    return static_cast<Conference&>(call());
}

void ConferenceCallItemSide::setTitleSuffix(const std::string& suffix, TranslationInfo* translation)
{
    conference().setSuffix(translation != nullptr ? OwnedText(TranslatedText(translation)) : OwnedText(suffix));
}

void ConferenceCallItemSide::appendCall(CallConnectedItem* call, bool isTitle)
{
    conference().append(call, isTitle);
}

void ConferenceCallItemSide::removeCall(CallConnectedItem* call)
{
    for (int i = 0; conference().memberAt(i) != nullptr; ++i)
        if (conference().facadeAt(i) == call)
            return conference().leave(*conference().memberAt(i));
}

void ConferenceCallItemSide::removeCall(int index)
{
    if (Call* const member = conference().memberAt(index))
        conference().leave(*member);
}

void ConferenceCallItemSide::setCallItem(int index)
{
    conference().select(index);
}

CallConnectedItem* ConferenceCallItemSide::getSelectedMember()
{
    return conference().facadeOf(conference().selected);
}

CallConnectedItem* ConferenceCallItemSide::getTitleMember()
{
    return conference().facadeOf(conference().title);
}

CallConnectedItem* ConferenceCallItemSide::getIndexedMember(int index)
{
    return conference().facadeAt(index);
}

} // namespace DisplayAPI
