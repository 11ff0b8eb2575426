#include "DisplayAPI/ContextMenu.h"

#include "DisplayAPI/ContextMenuPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/HardwareVersion.h"
#include "variants/menu/ContextMenuPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SHOW = 2,
    DISMISS = 3,
    ADD_COMMAND = 4,
    ADD_COMMAND_WITH_ICON = 5,
    CLEAR_COMMANDS = 6,
    SET_DEFAULT_COMMAND = 7,
    GET_SELECTED_COMMAND = 8,
    ADD_COMMAND_LISTENER = 9,
    REMOVE_COMMAND_LISTENER = 10,
    GET_SELECTED_INDEX = 11,
    SELECTION_HAS_CHANGED = 12,
    SET_BACK_TRANSLATOR = 13,
    SET_RIGHT_ARROW_EQUALS_OK = 14,
    SET_AUTO_HIDE_TIMEOUT = 15,
    SET_SYS_WINDOW_SIZE = 16
};

constexpr int SUB_VARIANT_WITHOUT_WAY_BACK = 3;

using Ifc = ContextMenuPrivateIfc;
using Record = GuiRequestEvent;

} // namespace

struct ContextMenu::Ops
    : Operations<Posts<CREATE, &ContextMenu::create>, Waits<DESTROY, &ContextMenu::destroy>, Posts<SHOW, &Ifc::open>,
                 Waits<DISMISS, &Ifc::dismiss>, Waits<ADD_COMMAND, &Ifc::addCommand>,
                 Waits<ADD_COMMAND_WITH_ICON, &Ifc::addCommandWithIcon>,
                 Superseding<Waits<CLEAR_COMMANDS, &Ifc::clearCommands>, ADD_COMMAND, ADD_COMMAND_WITH_ICON,
                             CLEAR_COMMANDS, SET_DEFAULT_COMMAND>,
                 Waits<SET_DEFAULT_COMMAND, &Ifc::setDefaultCommand>,
                 Waits<GET_SELECTED_COMMAND, &Ifc::getSelectedCommand, NOTHING, &Record::returnValue1>,
                 Posts<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
                 Posts<REMOVE_COMMAND_LISTENER, &Ifc::removeCommandListener>,
                 Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex, NOTHING, &Record::ptrParam1>,
                 Waits<SELECTION_HAS_CHANGED, &Ifc::selectionHasChanged, NOTHING, &Record::ptrParam1>,
                 Waits<SET_BACK_TRANSLATOR, &Ifc::setBackTranslator>,
                 Posts<SET_RIGHT_ARROW_EQUALS_OK, &Ifc::setRightArrowEqualsOK>,
                 Posts<SET_AUTO_HIDE_TIMEOUT, &Ifc::setAutoHideTimeout>,
                 Waits<SET_SYS_WINDOW_SIZE, &Ifc::setSysWindowSize>> {};

ContextMenu::ContextMenu(bool wayBack)
{
    const bool canHaveOne = HardwareVersion::getHWSubVariant() != SUB_VARIANT_WITHOUT_WAY_BACK;
    Ops::call<CREATE>(*this, mImplementation, wayBack && canHaveOne);
}

ContextMenu::~ContextMenu()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void ContextMenu::create(bool wayBack)
{
    name = "ContextMenu";
    if (isFullPanel())
        mImplementation = new ContextMenuPrivate(this);
    else
        mImplementation = new ContextMenuPrivateWP1(this, wayBack);
}

void ContextMenu::destroy()
{
    deletePrivateSide(mImplementation);
}

void ContextMenu::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, mImplementation, request))
        return reportUnknownRequest("./src/ContextMenu", 292, request);
    signalComplete(request);
}

DisplayablePrivateIfc* ContextMenu::getPrivateImpl()
{
    return mImplementation;
}

void ContextMenu::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void ContextMenu::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void ContextMenu::addCommand(Command* command, Command* second, bool marked)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command, second, marked);
}

void ContextMenu::addCommandWithIcon(MenuCommand* command, Command*, bool)
{
    Ops::call<ADD_COMMAND_WITH_ICON>(*this, mImplementation, command);
}

void ContextMenu::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

void ContextMenu::setCommands(const std::vector<MenuCommand*>& commands)
{
    clearCommands();
    for (MenuCommand* command : commands)
        addCommandWithIcon(command, nullptr, false);
}

void ContextMenu::setDefaultCommand(MenuCommand* command)
{
    Ops::call<SET_DEFAULT_COMMAND>(*this, mImplementation, command);
}

Command* ContextMenu::getSelectedCommand()
{
    return Ops::call<GET_SELECTED_COMMAND>(*this, mImplementation);
}

int ContextMenu::getSelectedIndex() const
{
    return Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
}

bool ContextMenu::selectionHasChanged() const
{
    return Ops::call<SELECTION_HAS_CHANGED>(*this, mImplementation);
}

void ContextMenu::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void ContextMenu::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void ContextMenu::setBackTranslator(TranslatorIfc* translator)
{
    Ops::call<SET_BACK_TRANSLATOR>(*this, mImplementation, translator);
}

void ContextMenu::setTranslator(TranslatorIfc*) {}

void ContextMenu::setRightArrowEqualsOK(bool on)
{
    Ops::call<SET_RIGHT_ARROW_EQUALS_OK>(*this, mImplementation, on);
}

void ContextMenu::setAutoHideTimeout(int milliseconds)
{
    Ops::call<SET_AUTO_HIDE_TIMEOUT>(*this, mImplementation, milliseconds);
}

void ContextMenu::setSysWindowSize(int lines)
{
    Ops::call<SET_SYS_WINDOW_SIZE>(*this, mImplementation, lines);
}

} // namespace DisplayAPI
