#include "DisplayAPI/CallConnectedItem.h"

#include "DisplayAPI/CallConnectedItemPrivateIfc.h"
#include "OnGuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/CallPartyIdentifier.h"
#include "variants/telephony/CallConnectedItemPrivate.h"

#include <memory>
#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    INITIALISE = 10,
    INITIALISE_TRANSLATED = 11,
    INITIALISE_EMPTY = 12,
    DESTROY = 13,
    SET_STATE = 14,
    SET_TEXT = 15,
    SET_TEXT_TRANSLATED = 16,
    SET_PICTURE_CLIP = 17,
    SET_SECOND_LINE = 18,
    SET_SECOND_LINE_TRANSLATED = 19,
    SET_SECURITY_STATE = 20,
    SET_RECORDING_STATE = 21,
    CLEAR_SECOND_LINE = 22,
    SET_THIRD_LINE = 23,
    SET_PARTY_DETAILS = 24,
    ADD_GPU_LINE = 25,
    ADD_GPU_LINE_TRANSLATED = 26,
    REMOVE_GPU_LINE = 27,
    SET_CALL_ID = 28,
    SET_CALL_ID_TRANSLATED = 29,
    GET_CALL_ID = 30,
    STOP_DURATION_TIMER = 31,
    ENABLED = 32,
    GET_ENABLED = 33,
    SET_HD_ICON = 34,
    SET_PARTY_ID = 35,
    GET_PARTY_ID = 36
};

using Ifc = CallConnectedItemPrivateIfc;
using State = CallConnectedItem::CallStateIcon;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<TranslationInfo*>;

/// The parties are the record's copies: it frees them where nobody shows them.
void showDetails(Ifc& call, std::unique_ptr<CallPartyIdentifier> party, std::unique_ptr<CallPartyIdentifier> second,
                 ForwardedCallType type, const std::string& text, TranslationInfo* translation)
{
    if (party != nullptr)
        call.setPartyDetails(*party, second.get(), type, text, translation);
}

} // namespace

struct CallConnectedItem::Ops
    : Operations<
          Posts<INITIALISE, taking<State, std::string, Image*, bool, bool>(&CallConnectedItem::initialise)>,
          Posts<INITIALISE_TRANSLATED,
                taking<State, TranslationInfo*, Image*, bool, bool>(&CallConnectedItem::initialise)>,
          Posts<INITIALISE_EMPTY, &CallConnectedItem::initialiseEmpty>, Waits<DESTROY, &CallConnectedItem::destroy>,
          Posts<SET_STATE, &Ifc::setState>, Posts<SET_TEXT, TEXT(&ListItemPrivateIfc::setText)>,
          Posts<SET_TEXT_TRANSLATED, TRANSLATION(&ListItemPrivateIfc::setText)>,
          Posts<SET_PICTURE_CLIP, &Ifc::setPictureClip>, Posts<SET_SECOND_LINE, TEXT(&Ifc::setSecondLineText)>,
          Posts<SET_SECOND_LINE_TRANSLATED, TRANSLATION(&Ifc::setSecondLineText)>,
          Posts<SET_SECURITY_STATE, &Ifc::setSecurityState>, Posts<SET_RECORDING_STATE, &Ifc::setRecordingState>,
          Posts<CLEAR_SECOND_LINE, &Ifc::clearSecondLineText>, Posts<SET_THIRD_LINE, &Ifc::setThirdLineIconText>,
          Posts<SET_PARTY_DETAILS, &showDetails>, Posts<ADD_GPU_LINE, TEXT(&Ifc::addGPULine)>,
          Posts<ADD_GPU_LINE_TRANSLATED, TRANSLATION(&Ifc::addGPULine)>, Posts<REMOVE_GPU_LINE, &Ifc::removeGPULine>,
          Posts<SET_CALL_ID, TEXT(&Ifc::setCallId)>, Posts<SET_CALL_ID_TRANSLATED, TRANSLATION(&Ifc::setCallId)>,
          Waits<GET_CALL_ID, &Ifc::getCallId>, Posts<STOP_DURATION_TIMER, &Ifc::stopDurationTimer>,
          Posts<ENABLED, &Ifc::enabled>, Waits<GET_ENABLED, &Ifc::getEnabled>,
          Posts<SET_HD_ICON, &Ifc::setDisplayHDIconStatus>, Posts<SET_PARTY_ID, &CallConnectedItem::keepPartyId>,
          Waits<GET_PARTY_ID, &CallConnectedItem::partyId>> {};

CallConnectedItem::CallConnectedItem(CallStateIcon state, bool timed, bool hasMenu) : CallConnectedItem()
{
    begin();
    Ops::call<INITIALISE_EMPTY>(*this, mCall, state, timed, hasMenu);
}

CallConnectedItem::CallConnectedItem(CallStateIcon state, std::string text, Image* picture, bool timed, bool hasMenu)
    : CallConnectedItem()
{
    begin();
    Ops::call<INITIALISE>(*this, mCall, state, std::move(text), picture, timed, hasMenu);
}

CallConnectedItem::CallConnectedItem(CallStateIcon state, TranslationInfo* text, Image* picture, bool timed,
                                     bool hasMenu)
    : CallConnectedItem()
{
    begin();
    Ops::call<INITIALISE_TRANSLATED>(*this, mCall, state, text, picture, timed, hasMenu);
}

CallConnectedItem::CallConnectedItem(CallConnectedItemPrivateIfc* implementation) : CallConnectedItem()
{
    mCall = implementation;
    begin();
}

CallConnectedItem::CallConnectedItem() : ListItem(nullptr) {}

CallConnectedItem::~CallConnectedItem()
{
    Ops::call<DESTROY>(*this, mCall);
}

/// Before anything is posted: the GUI thread reads the name.
void CallConnectedItem::begin()
{
    name = "CallConnectedItem";
    createEmpty();
}

void CallConnectedItem::initialise(CallStateIcon state, std::string text, Image* picture, bool timed, bool hasMenu)
{
    build(state, std::move(text), picture, timed, hasMenu);
}

void CallConnectedItem::initialise(CallStateIcon state, TranslationInfo* text, Image* picture, bool timed, bool hasMenu)
{
    build(state, text, picture, timed, hasMenu);
}

void CallConnectedItem::initialiseEmpty(CallStateIcon state, bool timed, bool hasMenu)
{
    build(state, std::string(), nullptr, timed, hasMenu);
}

template <typename Text>
void CallConnectedItem::build(CallStateIcon state, Text text, Image* picture, bool timed, bool hasMenu)
{
    if (KestrelApplication::getCurrentApplication() == nullptr)
        return;
    destroy();
    if (isFullPanel())
        mCall = new CallConnectedItemPrivate(state, std::move(text), picture, timed, hasMenu);
    else
        mCall = new CallConnectedItemPrivateWP1(state, std::move(text), picture, timed, hasMenu);
}

void CallConnectedItem::destroy()
{
    delete std::exchange(mCall, nullptr);
}

void CallConnectedItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, mCall, request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* CallConnectedItem::getPrivateImplemetation()
{
    return mCall;
}

void CallConnectedItem::setState(CallStateIcon state)
{
    Ops::call<SET_STATE>(*this, mCall, state);
}

void CallConnectedItem::setText(std::string text)
{
    Ops::call<SET_TEXT>(*this, mCall, std::move(text));
}

void CallConnectedItem::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mCall, text);
}

void CallConnectedItem::setPictureClip(Image* picture)
{
    Ops::call<SET_PICTURE_CLIP>(*this, mCall, picture);
}

void CallConnectedItem::setSecondLineText(std::string text)
{
    Ops::call<SET_SECOND_LINE>(*this, mCall, std::move(text));
}

void CallConnectedItem::setSecondLineText(TranslationInfo* text)
{
    Ops::call<SET_SECOND_LINE_TRANSLATED>(*this, mCall, text);
}

void CallConnectedItem::clearSecondLineText()
{
    Ops::call<CLEAR_SECOND_LINE>(*this, mCall);
}

void CallConnectedItem::setThirdLineIconText(ForwardedCallType type, std::string text)
{
    Ops::call<SET_THIRD_LINE>(*this, mCall, type, std::move(text));
}

void CallConnectedItem::setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty,
                                        ForwardedCallType type, const std::string& text, TranslationInfo* translation)
{
    auto second = secondParty != nullptr ? std::make_unique<CallPartyIdentifier>(*secondParty) : nullptr;
    Ops::call<SET_PARTY_DETAILS>(*this, mCall, std::make_unique<CallPartyIdentifier>(party), std::move(second), type,
                                 text, translation);
}

void CallConnectedItem::setSecurityState(CallSecurityState state)
{
    Ops::call<SET_SECURITY_STATE>(*this, mCall, state);
}

void CallConnectedItem::setRecordingState(bool on)
{
    Ops::call<SET_RECORDING_STATE>(*this, mCall, on);
}

void CallConnectedItem::setDisplayHDIconStatus(bool on)
{
    Ops::call<SET_HD_ICON>(*this, mCall, on);
}

void CallConnectedItem::addGPULine(std::string text)
{
    Ops::call<ADD_GPU_LINE>(*this, mCall, std::move(text));
}

void CallConnectedItem::addGPULine(TranslationInfo* text)
{
    Ops::call<ADD_GPU_LINE_TRANSLATED>(*this, mCall, text);
}

void CallConnectedItem::removeGPULine()
{
    Ops::call<REMOVE_GPU_LINE>(*this, mCall);
}

void CallConnectedItem::setCallId(std::string id)
{
    Ops::call<SET_CALL_ID>(*this, mCall, std::move(id));
}

void CallConnectedItem::setCallId(TranslationInfo* id)
{
    Ops::call<SET_CALL_ID_TRANSLATED>(*this, mCall, id);
}

std::string CallConnectedItem::getCallId() const
{
    return Ops::call<GET_CALL_ID>(*this, mCall);
}

void CallConnectedItem::stopDurationTimer()
{
    Ops::call<STOP_DURATION_TIMER>(*this, mCall);
}

void CallConnectedItem::enabled(bool on)
{
    Ops::call<ENABLED>(*this, mCall, on);
}

bool CallConnectedItem::getEnabled() const
{
    return Ops::call<GET_ENABLED>(*this, mCall);
}

void CallConnectedItem::setPartyId(std::string id)
{
    Ops::call<SET_PARTY_ID>(*this, mCall, std::move(id));
}

std::string CallConnectedItem::getPartyId() const
{
    return Ops::call<GET_PARTY_ID>(*this, mCall);
}

void CallConnectedItem::keepPartyId(std::string id)
{
    mPartyId = std::move(id);
}

std::string CallConnectedItem::partyId() const
{
    return mPartyId;
}

/// All codes of a call's row mean something else.
ContextMenu* CallConnectedItem::getContextMenu()
{
    ContextMenu* menu = nullptr;
    onGuiThread([&] { menu = mCall != nullptr ? mCall->getContextMenu() : nullptr; });
    return menu;
}

} // namespace DisplayAPI
