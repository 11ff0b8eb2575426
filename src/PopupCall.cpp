#include "DisplayAPI/PopupCall.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PartyText.h"
#include "DisplayAPI/PopupCallPrivateIfc.h"
#include "HandOver.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/popup/PopupCallPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_LINE1_PREFIX = 2,
    SET_LINE1_PREFIX_TRANSLATED = 3,
    SET_TEXT = 4,
    SET_TEXT_TRANSLATED = 5,
    SET_LINE2_PREFIX = 6,
    SET_LINE2_PREFIX_TRANSLATED = 7,
    SET_LINE2 = 8,
    SET_LINE2_TRANSLATED = 9,
    SET_AUX = 10,
    SET_STATE = 11,
    SET_PICTURE_CLIP = 12,
    ADD_COMMAND = 13,
    SET_DEFAULT_COMMAND = 14,
    CLEAR_COMMANDS = 15,
    DISMISS = 16,
    GET_SELECTED_INDEX = 17,
    SELECTION_HAS_CHANGED = 18,
    SET_POPUP_CALL_DETAILS = 19
};

using Ifc = PopupCallPrivateIfc;
using Owned = std::unique_ptr<TranslationInfo>;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<TranslationInfo*>;

} // namespace

struct PopupCall::Ops
    : Operations<Waits<CREATE, &PopupCall::create>, Waits<DESTROY, &PopupCall::destroy>,
                 Waits<SET_LINE1_PREFIX, TEXT(&Ifc::setLine1PrefixText)>,
                 Waits<SET_LINE1_PREFIX_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLine1PrefixText)>>,
                 Waits<SET_TEXT, TEXT(&Ifc::setText)>,
                 Waits<SET_TEXT_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setText)>>,
                 Waits<SET_LINE2_PREFIX, TEXT(&Ifc::setLine2PrefixText)>,
                 Waits<SET_LINE2_PREFIX_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLine2PrefixText)>>,
                 Waits<SET_LINE2, TEXT(&Ifc::setLine2Text)>,
                 Waits<SET_LINE2_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLine2Text)>>,
                 Waits<SET_AUX, &Ifc::setAuxText>, Waits<SET_STATE, &Ifc::setState>,
                 Waits<SET_PICTURE_CLIP, &Ifc::setPictureClip>, Waits<ADD_COMMAND, &Ifc::addCommand>,
                 Waits<SET_DEFAULT_COMMAND, &Ifc::setDefaultCommand>, Waits<CLEAR_COMMANDS, &Ifc::clearCommands>,
                 Waits<DISMISS, &Ifc::dismiss>, Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex>,
                 Waits<SELECTION_HAS_CHANGED, &Ifc::selectionHasChanged>,
                 Waits<SET_POPUP_CALL_DETAILS, &Ifc::setPopupCallDetails>> {};

PopupCall::PopupCall()
{
    Ops::call<CREATE>(*this, mImplementation);
}

PopupCall::PopupCall(PopupCallPrivateIfc* implementation) : mImplementation(implementation) {}

PopupCall::~PopupCall()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupCall::create()
{
    name = "PopupCall";
    if (isFullPanel())
        mImplementation = new PopupCallPrivate(this, nullptr);
    else
        mImplementation = new PopupCallPrivateWP1(this, nullptr);
}

void PopupCall::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupCall::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupCall::getPrivateImpl()
{
    return mImplementation;
}

void PopupCall::setLine1PrefixText(const std::string& text)
{
    Ops::call<SET_LINE1_PREFIX>(*this, mImplementation, text);
}

void PopupCall::setLine1PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE1_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupCall::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void PopupCall::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupCall::setLine2PrefixText(const std::string& text)
{
    Ops::call<SET_LINE2_PREFIX>(*this, mImplementation, text);
}

void PopupCall::setLine2PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE2_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupCall::setLine2Text(const std::string& text)
{
    Ops::call<SET_LINE2>(*this, mImplementation, text);
}

void PopupCall::setLine2Text(TranslationInfo* text)
{
    Ops::call<SET_LINE2_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupCall::setLine1Text(const CallPartyIdentifier& party)
{
    showParty(party, [this](const auto& text) { setText(text); });
}

void PopupCall::setLine2Text(const CallPartyIdentifier& party)
{
    showParty(party, [this](const auto& text) { setLine2Text(text); });
}

void PopupCall::setPopupCallDetails(CallPartyIdentifier& party, CallPartyIdentifier* redirecting,
                                    ForwardedCallType type, const std::string& text, TranslationInfo* translation)
{
    auto secondCopy = redirecting != nullptr ? std::make_unique<CallPartyIdentifier>(*redirecting) : nullptr;
    Ops::call<SET_POPUP_CALL_DETAILS>(*this, mImplementation, std::make_unique<CallPartyIdentifier>(party),
                                      std::move(secondCopy), type, text, Owned(translation));
}

void PopupCall::setStimulusText(const std::string&) {}

void PopupCall::setStimulusText(TranslationInfo*) {}

void PopupCall::clearStimulusText() {}

void PopupCall::showStimulusTextInHeader(bool) {}

void PopupCall::setAuxText(const std::string& text)
{
    Ops::call<SET_AUX>(*this, mImplementation, text);
}

void PopupCall::setState(CallState state, CallPriority priority)
{
    Ops::call<SET_STATE>(*this, mImplementation, state, priority);
}

void PopupCall::setPictureClip(Image* picture)
{
    Ops::call<SET_PICTURE_CLIP>(*this, mImplementation, picture);
}

void PopupCall::addCommand(MenuCommand* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void PopupCall::setDefaultCommand(MenuCommand* command)
{
    Ops::call<SET_DEFAULT_COMMAND>(*this, mImplementation, command);
}

void PopupCall::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

void PopupCall::setCommands(const std::vector<MenuCommand*>& commands)
{
    clearCommands();
    for (MenuCommand* command : commands)
        addCommand(command);
}

void PopupCall::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

int PopupCall::getSelectedIndex() const
{
    return Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
}

bool PopupCall::selectionHasChanged() const
{
    return Ops::call<SELECTION_HAS_CHANGED>(*this, mImplementation);
}

void PopupCall::addCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addCommandListener(listener);
}

void PopupCall::removeCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->removeCommandListener(listener);
}

} // namespace DisplayAPI
