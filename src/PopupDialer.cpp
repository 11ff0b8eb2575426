#include "DisplayAPI/PopupDialer.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialerPrivateIfc.h"
#include "HandOver.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/TranslationInfo.h"
#include "variants/popup/PopupDialerPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_LINE1_PREFIX = 2,
    SET_LINE1_PREFIX_TRANSLATED = 3,
    SET_TEXT = 4,
    SET_TEXT_TRANSLATED = 5,
    SET_LINE2 = 6,
    SET_LINE2_TRANSLATED = 7,
    GET_LINE_EDIT = 8,
    SET_LINE_EDIT = 9,
    SET_LINE_EDIT_TRANSLATED = 10,
    SHOW = 12,
    DISMISS = 13,
    ADD_COMMAND = 14,
    REMOVE_COMMAND = 15,
    SET_DEFAULT_COMMAND = 16,
    CLEAR_COMMANDS = 17,
    SET_MODE = 18,
    SET_EDIT_MODE = 19,
    SET_IGNORE_KEYPAD_EVENTS = 20,
    GET_SELECTED_INDEX = 21,
    SELECTION_HAS_CHANGED = 22,
    ADD_ITEM_STATE_LISTENER = 23,
    REMOVE_ITEM_STATE_LISTENER = 24,
    ADD_COMMAND_LISTENER = 25,
    SET_STIMULUS = 26,
    SET_STIMULUS_TRANSLATED = 27,
    SHOW_STIMULUS_IN_HEADER = 28
};

using Ifc = PopupDialerPrivateIfc;
using Owned = std::unique_ptr<TranslationInfo>;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<TranslationInfo*>;

} // namespace

struct PopupDialer::Ops
    : Operations<
          Posts<CREATE, &PopupDialer::create>, Waits<DESTROY, &PopupDialer::destroy>,
          Posts<SET_LINE1_PREFIX, TEXT(&Ifc::setLine1PrefixText)>,
          Posts<SET_LINE1_PREFIX_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLine1PrefixText)>>,
          Posts<SET_TEXT, TEXT(&Ifc::setText)>, Posts<SET_TEXT_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setText)>>,
          Posts<SET_LINE2, TEXT(&Ifc::setLine2Text)>,
          Posts<SET_LINE2_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLine2Text)>>,
          Waits<GET_LINE_EDIT, &Ifc::getLineEditText>, Posts<SET_LINE_EDIT, TEXT(&Ifc::setLineEditText)>,
          Posts<SET_LINE_EDIT_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setLineEditText)>>,
          Posts<SHOW, &DisplayablePrivateIfc::show>, Superseding<Posts<DISMISS, &Ifc::dismiss>>,
          Waits<ADD_COMMAND, &Ifc::addCommand>, Waits<REMOVE_COMMAND, &Ifc::removeCommand>,
          Waits<SET_DEFAULT_COMMAND, &Ifc::setDefaultCommand>,
          Superseding<Waits<CLEAR_COMMANDS, &Ifc::clearCommands>, ADD_COMMAND, REMOVE_COMMAND, SET_DEFAULT_COMMAND,
                      CLEAR_COMMANDS>,
          Posts<SET_MODE, &Ifc::setMode>, Posts<SET_EDIT_MODE, &Ifc::setEditMode>,
          Posts<SET_IGNORE_KEYPAD_EVENTS, &Ifc::setIgnoreKeypadEvents>,
          Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex>, Waits<SELECTION_HAS_CHANGED, &Ifc::selectionHasChanged>,
          Posts<ADD_ITEM_STATE_LISTENER, &Ifc::addItemStateListener>,
          Posts<REMOVE_ITEM_STATE_LISTENER, &Ifc::removeItemStateListener>,
          Posts<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>, Posts<SET_STIMULUS, TEXT(&Ifc::setStimulusText)>,
          Posts<SET_STIMULUS_TRANSLATED, &handOver<Ifc, TRANSLATION(&Ifc::setStimulusText)>>,
          Waits<SHOW_STIMULUS_IN_HEADER, &Ifc::showStimulusTextInHeader>> {};

PopupDialer::PopupDialer(bool wayBack, int)
{
    name = "PopupDialer";
    Ops::call<CREATE>(*this, mImplementation, wayBack);
}

PopupDialer::PopupDialer(PopupDialerPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "PopupDialer";
}

PopupDialer::~PopupDialer()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupDialer::create(bool wayBack)
{
    name = "PopupDialer";
    if (isFullPanel())
        mImplementation = new PopupDialerPrivate(this);
    else
        mImplementation = new PopupDialerPrivateWP1(this, wayBack);
}

void PopupDialer::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupDialer::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupDialer::getPrivateImpl()
{
    return mImplementation;
}

Command* PopupDialer::BackCommand()
{
    static Command command("", Command::BACK);
    return &command;
}

Command* PopupDialer::EditFieldShownCommand()
{
    static Command command("", Command::ITEM);
    return &command;
}

void PopupDialer::setLine1PrefixText(const std::string& text)
{
    Ops::call<SET_LINE1_PREFIX>(*this, mImplementation, text);
}

void PopupDialer::setLine1PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE1_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupDialer::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void PopupDialer::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupDialer::setLine2Text(const std::string& text)
{
    Ops::call<SET_LINE2>(*this, mImplementation, text);
}

void PopupDialer::setLine2Text(TranslationInfo* text)
{
    Ops::call<SET_LINE2_TRANSLATED>(*this, mImplementation, Owned(text));
}

std::string PopupDialer::getLineEditText()
{
    return Ops::call<GET_LINE_EDIT>(*this, mImplementation);
}

void PopupDialer::setLineEditText(const std::string& text)
{
    Ops::call<SET_LINE_EDIT>(*this, mImplementation, text);
}

void PopupDialer::setLineEditText(TranslationInfo* text)
{
    Ops::call<SET_LINE_EDIT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupDialer::setStimulusText(const std::string& text)
{
    Ops::call<SET_STIMULUS>(*this, mImplementation, text);
}

void PopupDialer::setStimulusText(TranslationInfo* text)
{
    Ops::call<SET_STIMULUS_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupDialer::clearStimulusText()
{
    setStimulusText(std::string());
}

void PopupDialer::showStimulusTextInHeader(bool on)
{
    Ops::call<SHOW_STIMULUS_IN_HEADER>(*this, mImplementation, on);
}

void PopupDialer::setAltEditPrefixText(const std::string&) {}

void PopupDialer::setAltEditPrefixText(TranslationInfo* text)
{
    delete text;
}

void PopupDialer::setNoScroll() {}

void PopupDialer::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void PopupDialer::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void PopupDialer::setMode(eMode mode)
{
    Ops::call<SET_MODE>(*this, mImplementation, mode);
}

void PopupDialer::setEditMode()
{
    Ops::call<SET_EDIT_MODE>(*this, mImplementation);
}

void PopupDialer::setIgnoreKeypadEvents(bool on)
{
    Ops::call<SET_IGNORE_KEYPAD_EVENTS>(*this, mImplementation, on);
}

void PopupDialer::addCommand(MenuCommand* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void PopupDialer::removeCommand(MenuCommand* command)
{
    Ops::call<REMOVE_COMMAND>(*this, mImplementation, command);
}

void PopupDialer::setDefaultCommand(MenuCommand* command)
{
    Ops::call<SET_DEFAULT_COMMAND>(*this, mImplementation, command);
}

void PopupDialer::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

int PopupDialer::getSelectedIndex() const
{
    return Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
}

bool PopupDialer::selectionHasChanged() const
{
    return Ops::call<SELECTION_HAS_CHANGED>(*this, mImplementation);
}

void PopupDialer::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void PopupDialer::addItemStateListener(ItemStateListener* listener)
{
    Ops::call<ADD_ITEM_STATE_LISTENER>(*this, mImplementation, listener);
}

void PopupDialer::removeItemStateListener(ItemStateListener* listener)
{
    Ops::call<REMOVE_ITEM_STATE_LISTENER>(*this, mImplementation, listener);
}

} // namespace DisplayAPI
