#include "DisplayAPI/PopupTextField.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupTextFieldPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/popup/PopupTextFieldPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    GET_TEXT = 2,
    CLEAR_TEXT = 3,
    ADD_COMMAND = 4,
    CLEAR_COMMANDS = 5,
    SET_DEFAULT_COMMAND = 6,
    DISMISS = 7,
    SET_LABEL = 8,
    SET_FIELD_TYPE = 9,
    SET_TIMEOUT = 10
};

constexpr unsigned long HIDDEN_ID = 1001012345;

using Ifc = PopupTextFieldPrivateIfc;

} // namespace

struct PopupTextField::Ops
    : Operations<Waits<CREATE, &PopupTextField::create>, Waits<DESTROY, &PopupTextField::destroy>,
                 Waits<GET_TEXT, &Ifc::getText>, Waits<CLEAR_TEXT, &Ifc::clear>, Waits<ADD_COMMAND, &Ifc::addCommand>,
                 Waits<CLEAR_COMMANDS, &Ifc::clearCommands>, Waits<SET_DEFAULT_COMMAND, &Ifc::setDefaultCommand>,
                 Waits<DISMISS, &Ifc::dismiss>, Waits<SET_LABEL, &Ifc::setLabel>,
                 Waits<SET_FIELD_TYPE, &Ifc::setFieldType>, Waits<SET_TIMEOUT, &Ifc::setTimeout>> {};

PopupTextField::PopupTextField(TextField* field, bool leftGoesBack)
{
    Ops::call<CREATE>(*this, mImplementation, field, leftGoesBack);
}

/// On the GUI thread nothing is made.
PopupTextField::PopupTextField(bool leftGoesBack)
{
    name = "PopupTextField";
    if (!isGuiThread())
        Ops::call<CREATE>(*this, mImplementation, nullptr, leftGoesBack);
}

PopupTextField::PopupTextField(PopupTextFieldPrivateIfc* implementation) : mImplementation(implementation) {}

PopupTextField::~PopupTextField()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupTextField::create(TextField* field, bool leftGoesBack)
{
    if (mImplementation != nullptr)
        return;
    name = "PopupTextField";
    if (isFullPanelHardware())
        mImplementation = new PopupTextFieldPrivate(this, field);
    else
        mImplementation = new PopupTextFieldPrivateWP1(this, field, leftGoesBack);
}

void PopupTextField::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupTextField::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupTextField::getPrivateImpl()
{
    return mImplementation;
}

MenuCommand* PopupTextField::HIDDEN_COMMAND()
{
    static MenuCommand command("WIDGET_IS_HIDDEN_EVENT", HIDDEN_ID);
    return &command;
}

std::string PopupTextField::getText()
{
    return Ops::call<GET_TEXT>(*this, mImplementation);
}

void PopupTextField::clearText()
{
    Ops::call<CLEAR_TEXT>(*this, mImplementation);
}

void PopupTextField::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void PopupTextField::addCommand(MenuCommand* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void PopupTextField::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

void PopupTextField::setDefaultCommand(MenuCommand* command)
{
    Ops::call<SET_DEFAULT_COMMAND>(*this, mImplementation, command);
}

void PopupTextField::setLabel(TranslationInfo* label)
{
    Ops::call<SET_LABEL>(*this, mImplementation, label);
}

void PopupTextField::setFieldType(const TextField::FieldType& type)
{
    Ops::call<SET_FIELD_TYPE>(*this, mImplementation, type);
}

void PopupTextField::setTimeout(int milliseconds)
{
    Ops::call<SET_TIMEOUT>(*this, mImplementation, milliseconds);
}

void PopupTextField::addCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addCommandListener(listener);
}

void PopupTextField::removeCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->removeCommandListener(listener);
}

void PopupTextField::addItemStateListener(ItemStateListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addItemStateListener(listener);
}

void PopupTextField::removeItemStateListener(ItemStateListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->removeItemStateListener(listener);
}

} // namespace DisplayAPI
