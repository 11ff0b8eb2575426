#include "variants/telephony/CallConnectedItemPrivate.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Image.h"
#include "doubles/Answers.h"
#include "doubles/CallSide.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

namespace {

using State = CallConnectedItem::CallStateIcon;

template <typename Call, typename Text>
std::unique_ptr<Call> newCall(Panel panel, State state, Text text, Image* picture, bool timed, bool hasMenu)
{
    auto call = std::make_unique<Call>("CallConnectedItemPrivate", panel);
    call->made(static_cast<int>(state), text, picture, timed, hasMenu);
    return call;
}

} // namespace

CallConnectedItemSide::CallConnectedItemSide(std::unique_ptr<Call> call) : mCall(std::move(call)) {}

CallConnectedItemSide::~CallConnectedItemSide() = default;

CallConnectedItemPrivate::CallConnectedItemPrivate(State state, std::string text, Image* picture, bool timed,
                                                   bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::FULL, state, text, picture, timed, hasMenu))
{
}

CallConnectedItemPrivate::CallConnectedItemPrivate(State state, TranslationInfo* text, Image* picture, bool timed,
                                                   bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::FULL, state, text, picture, timed, hasMenu))
{
}

CallConnectedItemPrivateWP1::CallConnectedItemPrivateWP1(State state, std::string text, Image* picture, bool timed,
                                                         bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::SMALL, state, text, picture, timed, hasMenu))
{
}

CallConnectedItemPrivateWP1::CallConnectedItemPrivateWP1(State state, TranslationInfo* text, Image* picture, bool timed,
                                                         bool hasMenu)
    : CallConnectedItemSide(newCall<Call>(Panel::SMALL, state, text, picture, timed, hasMenu))
{
}

void CallConnectedItemSide::localeChanged(std::string locale)
{
    mCall->note("localeChanged", locale);
}

void CallConnectedItemSide::releaseOwnership()
{
    mCall->note("releaseOwnership");
}

void CallConnectedItemSide::setText(std::string text)
{
    mCall->note("setText", text);
}

void CallConnectedItemSide::setText(TranslationInfo* text)
{
    mCall->note("setText", text);
}

KestrelListBoxItem* CallConnectedItemSide::getKestrelListItem()
{
    return &mCall->item;
}

void CallConnectedItemSide::setState(State state)
{
    mCall->note("setState", static_cast<int>(state));
}

void CallConnectedItemSide::setPictureClip(Image* picture)
{
    mCall->note("setPictureClip", picture);
}

void CallConnectedItemSide::setSecondLineText(std::string text)
{
    mCall->note("setSecondLineText", text);
}

void CallConnectedItemSide::setSecondLineText(TranslationInfo* text)
{
    mCall->note("setSecondLineText", text);
}

void CallConnectedItemSide::setThirdLineIconText(ForwardedCallType type, std::string text)
{
    mCall->note("setThirdLineIconText", static_cast<int>(type), text);
}

void CallConnectedItemSide::setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty,
                                            ForwardedCallType type, const std::string& text,
                                            TranslationInfo* translation)
{
    mCall->note("setPartyDetails", party.name(), secondParty != nullptr ? secondParty->name() : "nobody",
                static_cast<int>(type), text, translation);
}

void CallConnectedItemSide::setSecurityState(CallConnectedItem::CallSecurityState state)
{
    mCall->note("setSecurityState", static_cast<int>(state));
}

void CallConnectedItemSide::setRecordingState(bool on)
{
    mCall->note("setRecordingState", on);
}

void CallConnectedItemSide::clearSecondLineText()
{
    mCall->note("clearSecondLineText");
}

void CallConnectedItemSide::setCallId(std::string id)
{
    mCall->note("setCallId", id);
}

void CallConnectedItemSide::setCallId(TranslationInfo* id)
{
    mCall->note("setCallId", id);
}

std::string CallConnectedItemSide::getCallId()
{
    mCall->note("getCallId");
    return "call 7";
}

ContextMenu* CallConnectedItemSide::getContextMenu()
{
    mCall->note("getContextMenu");
    return doubles::Answers::instance().menu;
}

void CallConnectedItemSide::stopDurationTimer()
{
    mCall->note("stopDurationTimer");
}

void CallConnectedItemSide::addGPULine(std::string text)
{
    mCall->note("addGPULine", text);
}

void CallConnectedItemSide::addGPULine(TranslationInfo* text)
{
    mCall->note("addGPULine", text);
}

void CallConnectedItemSide::removeGPULine()
{
    mCall->note("removeGPULine");
}

void CallConnectedItemSide::enabled(bool on)
{
    mCall->note("enabled", on);
}

bool CallConnectedItemSide::getEnabled()
{
    mCall->note("getEnabled");
    return doubles::Answers::instance().isSelected;
}

void CallConnectedItemSide::setDisplayHDIconStatus(bool on)
{
    mCall->note("setDisplayHDIconStatus", on);
}

} // namespace DisplayAPI
