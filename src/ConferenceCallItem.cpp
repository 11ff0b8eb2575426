#include "DisplayAPI/ConferenceCallItem.h"

#include "DisplayAPI/CallConnectedItemPrivateIfc.h"
#include "DisplayAPI/ConferenceCallItemPrivateIfc.h"
#include "OnGuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/ConferenceCallItemPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    DESTROY = 13,
    INITIALISE = 100,
    INITIALISE_TRANSLATED = 101,
    APPEND_CALL = 102,
    REMOVE_CALL = 103,
    REMOVE_CALL_AT = 104,
    GET_TITLE_MEMBER = 105,
    GET_SELECTED_MEMBER = 106,
    GET_INDEXED_MEMBER = 107,
    SET_CALL_ITEM = 108,
    SET_TITLE_SUFFIX_TRANSLATED = 109,
    SET_TITLE_SUFFIX = 110
};

/// The codes with which the base makes its own side.
bool makesACall(int code)
{
    return code >= 10 && code <= 12;
}

using Ifc = ConferenceCallItemPrivateIfc;
using State = CallConnectedItem::CallStateIcon;

void showSuffix(Ifc& conference, const std::string& suffix)
{
    conference.setTitleSuffix(suffix, nullptr);
}

void showTranslatedSuffix(Ifc& conference, TranslationInfo* suffix)
{
    conference.setTitleSuffix(std::string(), suffix);
}

} // namespace

struct ConferenceCallItem::Ops
    : Operations<Waits<DESTROY, &ConferenceCallItem::destroy>,
                 Waits<INITIALISE, taking<State, std::string, bool>(&ConferenceCallItem::initialise)>,
                 Waits<INITIALISE_TRANSLATED, taking<State, TranslationInfo*, bool>(&ConferenceCallItem::initialise)>,
                 Waits<APPEND_CALL, &Ifc::appendCall>, Waits<REMOVE_CALL, taking<CallConnectedItem*>(&Ifc::removeCall)>,
                 Waits<REMOVE_CALL_AT, taking<int>(&Ifc::removeCall)>, Waits<GET_TITLE_MEMBER, &Ifc::getTitleMember>,
                 Waits<GET_SELECTED_MEMBER, &Ifc::getSelectedMember>, Waits<GET_INDEXED_MEMBER, &Ifc::getIndexedMember>,
                 Waits<SET_CALL_ITEM, &Ifc::setCallItem>, Waits<SET_TITLE_SUFFIX_TRANSLATED, &showTranslatedSuffix>,
                 Waits<SET_TITLE_SUFFIX, &showSuffix>> {};

ConferenceCallItem::ConferenceCallItem(CallStateIcon state, std::string text, bool open)
{
    begin();
    Ops::call<INITIALISE>(*this, mConference, state, std::move(text), open);
}

ConferenceCallItem::ConferenceCallItem(CallStateIcon state, TranslationInfo* text, bool open)
{
    begin();
    Ops::call<INITIALISE_TRANSLATED>(*this, mConference, state, text, open);
}

ConferenceCallItem::ConferenceCallItem(ConferenceCallItemPrivateIfc* implementation) : mConference(implementation)
{
    setCallImplementation(dynamic_cast<CallConnectedItemPrivateIfc*>(implementation));
    begin();
}

// The side goes while the object is still a conference, and so does what is queued before.
ConferenceCallItem::~ConferenceCallItem()
{
    Ops::call<DESTROY>(*this, mConference);
}

void ConferenceCallItem::begin()
{
    name = "ConferenceCallItem";
    createEmpty();
}

void ConferenceCallItem::initialise(CallStateIcon state, std::string text, bool open)
{
    build(state, std::move(text), open);
}

void ConferenceCallItem::initialise(CallStateIcon state, TranslationInfo* text, bool open)
{
    build(state, text, open);
}

template <typename Text>
void ConferenceCallItem::build(CallStateIcon state, Text text, bool open)
{
    if (KestrelApplication::getCurrentApplication() == nullptr)
        return;
    destroy();
    const auto keep = [this](auto* side) {
        mConference = side;
        setCallImplementation(side);
    };
    if (isFullPanel())
        keep(new ConferenceCallItemPrivate(state, std::move(text), this, open));
    else
        keep(new ConferenceCallItemPrivateWP1(state, std::move(text), this, open));
}

/// One object with two interfaces: the call's deletes it.
void ConferenceCallItem::destroy()
{
    mConference = nullptr;
    CallConnectedItem::destroy();
}

void ConferenceCallItem::processGuiRequest(GuiRequestEvent& request)
{
    if (makesACall(request.getType()))
        mConference = nullptr; // a call's side takes its place
    if (!Ops::carryOut(*this, mConference, request))
        return CallConnectedItem::processGuiRequest(request);
    signalComplete(request);
}

void ConferenceCallItem::appendCall(CallConnectedItem* call, bool isTitle)
{
    Ops::call<APPEND_CALL>(*this, mConference, call, isTitle);
}

void ConferenceCallItem::removeCall(CallConnectedItem* call)
{
    Ops::call<REMOVE_CALL>(*this, mConference, call);
}

void ConferenceCallItem::removeCall(int index)
{
    Ops::call<REMOVE_CALL_AT>(*this, mConference, index);
}

void ConferenceCallItem::setCallItem(int index)
{
    Ops::call<SET_CALL_ITEM>(*this, mConference, index);
}

CallConnectedItem* ConferenceCallItem::getSelectedMember() const
{
    return Ops::call<GET_SELECTED_MEMBER>(*this, mConference);
}

CallConnectedItem* ConferenceCallItem::getTitleMember() const
{
    return Ops::call<GET_TITLE_MEMBER>(*this, mConference);
}

CallConnectedItem* ConferenceCallItem::getIndexedMember(int index) const
{
    return Ops::call<GET_INDEXED_MEMBER>(*this, mConference, index);
}

void ConferenceCallItem::setTitleSuffix(const std::string& suffix)
{
    Ops::call<SET_TITLE_SUFFIX>(*this, mConference, suffix);
}

void ConferenceCallItem::setTitleSuffix(TranslationInfo* suffix)
{
    Ops::call<SET_TITLE_SUFFIX_TRANSLATED>(*this, mConference, suffix);
}

/// No code means this.
void ConferenceCallItem::localeChanged(std::string locale)
{
    onGuiThread([&] {
        if (ListItemPrivateIfc* const row = getPrivateImplemetation())
            row->localeChanged(locale);
    });
}

} // namespace DisplayAPI
