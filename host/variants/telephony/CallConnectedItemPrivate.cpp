#include "variants/telephony/CallConnectedItemPrivate.h"

#include "host/variants/telephony/Call.h"
#include "host/variants/telephony/CallIcons.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

namespace {

using State = CallConnectedItem::CallStateIcon;

/// The application's translation stays its own.
OwnedText borrowed(const TranslationInfo* text)
{
    return OwnedText(TranslatedText(text));
}

template <typename Call>
std::unique_ptr<Call> newCall(Panel panel, State state, OwnedText text, bool timed, bool hasMenu)
{
    auto call = std::make_unique<Call>("CallConnectedItem", std::move(text), timed, hasMenu, panel);
    call->setState(state);
    return call;
}

} // namespace

CallConnectedItemSide::CallConnectedItemSide(std::unique_ptr<Call> call) : mCall(std::move(call)) {}

CallConnectedItemSide::~CallConnectedItemSide() = default;

CallConnectedItemPrivate::CallConnectedItemPrivate(State state, std::string text, Image*, bool timed, bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::FULL, state, OwnedText(std::move(text)), timed, hasMenu))
{
}

CallConnectedItemPrivate::CallConnectedItemPrivate(State state, TranslationInfo* text, Image*, bool timed, bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::FULL, state, borrowed(text), timed, hasMenu))
{
}

CallConnectedItemPrivateWP1::CallConnectedItemPrivateWP1(State state, std::string text, Image*, bool timed,
                                                         bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::SMALL, state, OwnedText(std::move(text)), timed, hasMenu))
{
}

CallConnectedItemPrivateWP1::CallConnectedItemPrivateWP1(State state, TranslationInfo* text, Image*, bool timed,
                                                         bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::SMALL, state, borrowed(text), timed, hasMenu))
{
}

KestrelListBoxItem* CallConnectedItemSide::getKestrelListItem()
{
    return &mCall->row;
}

/// The row goes with its side.
void CallConnectedItemSide::releaseOwnership() {}

void CallConnectedItemSide::localeChanged(std::string)
{
    mCall->localeChanged();
}

void CallConnectedItemSide::setText(std::string text)
{
    mCall->who = OwnedText(std::move(text));
    mCall->changed();
}

void CallConnectedItemSide::setText(TranslationInfo* text)
{
    mCall->who = borrowed(text);
    mCall->changed();
}

void CallConnectedItemSide::setState(State state)
{
    mCall->setState(state);
}

/// This telephone shows no pictures.
void CallConnectedItemSide::setPictureClip(Image*) {}

void CallConnectedItemSide::setSecondLineText(std::string text)
{
    mCall->second = {.prefix = {}, .text = OwnedText(std::move(text))};
    mCall->changed();
}

void CallConnectedItemSide::setSecondLineText(TranslationInfo* text)
{
    mCall->second = {.prefix = {}, .text = borrowed(text)};
    mCall->changed();
}

void CallConnectedItemSide::clearSecondLineText()
{
    mCall->second = {};
    mCall->changed();
}

void CallConnectedItemSide::setThirdLineIconText(ForwardedCallType type, std::string text)
{
    mCall->third = {.prefix = {}, .text = OwnedText(std::move(text)), .icon = iconOf(type)};
    mCall->changed();
}

void CallConnectedItemSide::setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty,
                                            ForwardedCallType type, const std::string& text,
                                            TranslationInfo* translation)
{
    mCall->who = OwnedText(party);
    mCall->second = {.prefix = OwnedText(text), .text = borrowed(translation)};
    mCall->third = {
        .prefix = {}, .text = secondParty != nullptr ? OwnedText(*secondParty) : OwnedText(), .icon = iconOf(type)};
    mCall->changed();
}

void CallConnectedItemSide::setSecurityState(CallConnectedItem::CallSecurityState state)
{
    mCall->security = state;
    mCall->changed();
}

void CallConnectedItemSide::setRecordingState(bool on)
{
    mCall->isRecorded = on;
    mCall->changed();
}

void CallConnectedItemSide::setDisplayHDIconStatus(bool on)
{
    mCall->isHd = on;
    mCall->changed();
}

void CallConnectedItemSide::setCallId(std::string id)
{
    mCall->id = OwnedText(std::move(id));
}

void CallConnectedItemSide::setCallId(TranslationInfo* id)
{
    mCall->id = borrowed(id);
}

std::string CallConnectedItemSide::getCallId()
{
    return mCall->id.text();
}

ContextMenu* CallConnectedItemSide::getContextMenu()
{
    return mCall->menu();
}

void CallConnectedItemSide::stopDurationTimer()
{
    mCall->duration.end();
    mCall->changed();
}

void CallConnectedItemSide::addGPULine(std::string text)
{
    mCall->addMore(OwnedText(std::move(text)));
}

void CallConnectedItemSide::addGPULine(TranslationInfo* text)
{
    mCall->addMore(borrowed(text));
}

void CallConnectedItemSide::removeGPULine()
{
    if (mCall->more.empty())
        return;
    mCall->more.pop_back();
    mCall->changed();
}

void CallConnectedItemSide::enabled(bool on)
{
    mCall->isEnabled = on;
    mCall->changed();
}

bool CallConnectedItemSide::getEnabled()
{
    return mCall->isEnabled;
}

} // namespace DisplayAPI
