#include "DisplayAPI/PopupConfirm.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PartyText.h"
#include "DisplayAPI/PopupConfirmPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/HardwareVersion.h"
#include "variants/popup/PopupConfirmPrivate.h"

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
    SET_STATE = 10,
    SHOW = 11,
    DISMISS = 12,
    ADD_COMMAND = 13,
    REMOVE_COMMAND = 14,
    SET_DEFAULT_COMMAND = 15,
    CLEAR_COMMANDS = 16,
    GET_SELECTED_INDEX = 17,
    SELECTION_HAS_CHANGED = 18,
    SET_TIMEOUT = 19,
    ADD_COMMAND_LISTENER = 20,
    REMOVE_COMMAND_LISTENER = 21
};

constexpr int SUB_VARIANT_WITHOUT_WAY_BACK = 3;
constexpr unsigned long HIDDEN_ID = 1001012345;

using Ifc = PopupConfirmPrivateIfc;
using Owned = std::unique_ptr<TranslationInfo>;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<Owned>;

} // namespace

struct PopupConfirm::Ops
    : Operations<Waits<CREATE, &PopupConfirm::create>, Waits<DESTROY, &PopupConfirm::destroy>,
                 Waits<SET_LINE1_PREFIX, TEXT(&Ifc::setLine1PrefixText)>,
                 Waits<SET_LINE1_PREFIX_TRANSLATED, TRANSLATION(&Ifc::setLine1PrefixText)>,
                 Waits<SET_TEXT, TEXT(&Ifc::setText)>, Waits<SET_TEXT_TRANSLATED, TRANSLATION(&Ifc::setText)>,
                 Waits<SET_LINE2_PREFIX, TEXT(&Ifc::setLine2PrefixText)>,
                 Waits<SET_LINE2_PREFIX_TRANSLATED, TRANSLATION(&Ifc::setLine2PrefixText)>,
                 Waits<SET_LINE2, TEXT(&Ifc::setLine2Text)>,
                 Waits<SET_LINE2_TRANSLATED, TRANSLATION(&Ifc::setLine2Text)>, Waits<SET_STATE, &Ifc::setState>,
                 Waits<SHOW, &Ifc::open>, Waits<DISMISS, &Ifc::dismiss>, Waits<ADD_COMMAND, &Ifc::addCommand>,
                 Waits<REMOVE_COMMAND, &Ifc::removeCommand>, Waits<SET_DEFAULT_COMMAND, &Ifc::setDefaultCommand>,
                 Waits<CLEAR_COMMANDS, &Ifc::clearCommands>, Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex>,
                 Waits<SELECTION_HAS_CHANGED, &Ifc::selectionHasChanged>, Waits<SET_TIMEOUT, &Ifc::setTimeout>,
                 Waits<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
                 Waits<REMOVE_COMMAND_LISTENER, &Ifc::removeCommandListener>> {};

/// From another thread the flag travels as it is, whatever the hardware.
PopupConfirm::PopupConfirm(bool wayBack)
{
    const bool hasNone = isGuiThread() && HardwareVersion::getHWSubVariant() == SUB_VARIANT_WITHOUT_WAY_BACK;
    Ops::call<CREATE>(*this, mImplementation, wayBack && !hasNone);
}

PopupConfirm::~PopupConfirm()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupConfirm::create(bool wayBack)
{
    name = "PopupConfirm";
    if (isFullPanel())
        mImplementation = new PopupConfirmPrivate(this);
    else
        mImplementation = new PopupConfirmPrivateWP1(this, wayBack);
}

void PopupConfirm::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupConfirm::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupConfirm::getPrivateImpl()
{
    return mImplementation;
}

/// Never destroyed: listeners may still hear it while the process ends.
MenuCommand* PopupConfirm::HIDDEN_COMMAND()
{
    static MenuCommand command("WIDGET_IS_HIDDEN_EVENT", HIDDEN_ID);
    return &command;
}

void PopupConfirm::setLine1PrefixText(const std::string& text)
{
    Ops::call<SET_LINE1_PREFIX>(*this, mImplementation, text);
}

void PopupConfirm::setLine1PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE1_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupConfirm::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void PopupConfirm::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupConfirm::setLine2PrefixText(const std::string& text)
{
    Ops::call<SET_LINE2_PREFIX>(*this, mImplementation, text);
}

void PopupConfirm::setLine2PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE2_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupConfirm::setLine2Text(const std::string& text)
{
    Ops::call<SET_LINE2>(*this, mImplementation, text);
}

void PopupConfirm::setLine2Text(TranslationInfo* text)
{
    Ops::call<SET_LINE2_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupConfirm::setPartyDetails(const CallPartyIdentifier& party, int)
{
    showParty(party, [this](const auto& text) { setText(text); });
}

void PopupConfirm::setStimulusText(const std::string&) {}

void PopupConfirm::setStimulusText(TranslationInfo*) {}

void PopupConfirm::clearStimulusText() {}

void PopupConfirm::showStimulusTextInHeader(bool) {}

void PopupConfirm::setState(PopupState state)
{
    Ops::call<SET_STATE>(*this, mImplementation, state);
}

void PopupConfirm::setTimeout(int milliseconds)
{
    Ops::call<SET_TIMEOUT>(*this, mImplementation, milliseconds);
}

void PopupConfirm::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void PopupConfirm::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void PopupConfirm::addCommand(Command* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void PopupConfirm::removeCommand(Command* command)
{
    Ops::call<REMOVE_COMMAND>(*this, mImplementation, command);
}

void PopupConfirm::setDefaultCommand(Command* command)
{
    Ops::call<SET_DEFAULT_COMMAND>(*this, mImplementation, command);
}

void PopupConfirm::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

int PopupConfirm::getSelectedIndex() const
{
    return Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
}

bool PopupConfirm::selectionHasChanged() const
{
    return Ops::call<SELECTION_HAS_CHANGED>(*this, mImplementation);
}

void PopupConfirm::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void PopupConfirm::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

} // namespace DisplayAPI
