#include "DisplayAPI/SelectionField.h"

#include "DisplayAPI/SelectionFieldPrivateIfc.h"
#include "Operations.h"
#include "Survival.h"
#include "Variant.h"
#include "variants/form/SelectionFieldPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CREATE_TRANSLATED = 1,
    DESTROY = 2,
    SET_FIELD_CONTENTS = 3,
    SET_SELECTION_INDEX = 4,
    GET_SELECTION_INDEX = 5,
    SET_SELECTION_COMMAND = 6,
    GET_SELECTION_COMMAND = 7,
    APPEND_SELECTION = 8,
    CLEAR_SELECTIONS = 9,
    SET_INFORM_APP_ON_OK = 10,
    SET_READ_ONLY_MODE = 11,
    GET_READ_ONLY_MODE = 12,
    GET_HIGHLIGHTED_INDEX = 13,
    DISPLAY_CURRENT_SELECTION = 14,
    SET_LABEL = 15
};

using Ifc = SelectionFieldPrivateIfc;
using Icon = PhonebookItem::IconType;

template <typename Label>
SelectionFieldPrivateIfc* madeByProduction(const Label& label, Icon icon, MenuCommand* contents, Form* form)
{
    if (isFullPanelHardware())
        return new SelectionFieldPrivate(label, icon, contents, form);
    return new SelectionFieldPrivateWP1(label, icon, contents, form);
}

} // namespace

std::atomic<int> SelectionField::itemCount{0};

struct SelectionField::Ops
    : Operations<
          Waits<CREATE, &SelectionField::create>, Waits<CREATE_TRANSLATED, &SelectionField::createTranslated>,
          Waits<DESTROY, &SelectionField::destroy>, Waits<SET_FIELD_CONTENTS, &Ifc::setFieldContents>,
          Waits<SET_SELECTION_INDEX, &Ifc::setSelectionIndex>, Waits<GET_SELECTION_INDEX, &Ifc::getSelectionIndex, -1>,
          Waits<SET_SELECTION_COMMAND, &Ifc::setSelectionCommand>,
          Waits<GET_SELECTION_COMMAND, &Ifc::getSelectionCommand>,
          Waits<APPEND_SELECTION, &SelectionField::appendChoice>,
          Waits<CLEAR_SELECTIONS, &SelectionField::clearChoices>, Waits<SET_INFORM_APP_ON_OK, &Ifc::setInformAppOnOk>,
          Waits<SET_READ_ONLY_MODE, &Ifc::setReadOnlyMode>, Waits<GET_READ_ONLY_MODE, &Ifc::getReadOnlyMode>,
          Waits<GET_HIGHLIGHTED_INDEX, &Ifc::getHighlightedIndex, -1>,
          Waits<DISPLAY_CURRENT_SELECTION, &Ifc::displayCurrentSelection>, Waits<SET_LABEL, &Ifc::setLabel>> {};

SelectionField::SelectionField(TranslationInfo* label, MenuCommand* contents, Form* form, bool flag)
    : SelectionField(label, PhonebookItem::ICON_NONE, contents, form, flag)
{
}

SelectionField::SelectionField(TranslationInfo* label, Icon icon, MenuCommand* contents, Form* form, bool flag)
    : SelectionField(nullptr)
{
    Ops::call<CREATE_TRANSLATED>(*this, mImplementation, label, icon, contents, form, flag);
}

SelectionField::SelectionField(std::string label, MenuCommand* contents, Form* form, bool flag)
    : SelectionField(std::move(label), PhonebookItem::ICON_NONE, contents, form, flag)
{
}

SelectionField::SelectionField(std::string label, Icon icon, MenuCommand* contents, Form* form, bool flag)
    : SelectionField(nullptr)
{
    Ops::call<CREATE>(*this, mImplementation, label, icon, contents, form, flag);
}

SelectionField::SelectionField(SelectionFieldPrivateIfc* implementation)
    : mImplementation(implementation), mId(++itemCount)
{
    name = "SelectionField";
}

SelectionField::~SelectionField()
{
    Survival::end(this);
    Ops::call<DESTROY>(*this, mImplementation);
}

void SelectionField::create(const std::string& label, Icon icon, MenuCommand* contents, Form* form, bool)
{
    mImplementation = madeByProduction(label, icon, contents, form);
}

void SelectionField::createTranslated(TranslationInfo* label, Icon icon, MenuCommand* contents, Form* form, bool)
{
    mImplementation = madeByProduction(label, icon, contents, form);
}

void SelectionField::destroy()
{
    delete std::exchange(mImplementation, nullptr);
}

void SelectionField::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

std::string SelectionField::getType()
{
    return mType;
}

int SelectionField::getID()
{
    return mId;
}

ItemPrivateIfc* SelectionField::getPrivateImpl()
{
    return mImplementation;
}

void SelectionField::localeChanged(std::string locale)
{
    if (mImplementation != nullptr)
        mImplementation->localeChanged(std::move(locale));
}

void SelectionField::setFieldContents(MenuCommand* command)
{
    Ops::call<SET_FIELD_CONTENTS>(*this, mImplementation, command);
}

void SelectionField::setSelectionIndex(int index)
{
    Ops::call<SET_SELECTION_INDEX>(*this, mImplementation, index);
}

int SelectionField::getSelectionIndex()
{
    return Ops::call<GET_SELECTION_INDEX>(*this, mImplementation);
}

void SelectionField::setSelectionCommand(MenuCommand* command)
{
    Ops::call<SET_SELECTION_COMMAND>(*this, mImplementation, command);
}

MenuCommand* SelectionField::getSelectionCommand()
{
    return Ops::call<GET_SELECTION_COMMAND>(*this, mImplementation);
}

void SelectionField::appendSelection(MenuCommand* command)
{
    Ops::call<APPEND_SELECTION>(*this, mImplementation, command);
}

void SelectionField::appendChoice(MenuCommand* command)
{
    if (command == nullptr)
        return;
    const Survival survival(this);
    if (mImplementation != nullptr)
        mImplementation->appendSelection(command);
    if (survival)
        mCommands.push_back(command);
}

void SelectionField::clearSelections(MenuCommand* contents)
{
    Ops::call<CLEAR_SELECTIONS>(*this, mImplementation, contents);
}

void SelectionField::clearChoices(MenuCommand* contents)
{
    const Survival survival(this);
    if (mImplementation != nullptr)
        mImplementation->clearSelections(contents);
    if (survival)
        mCommands.clear();
}

void SelectionField::setInformAppOnOk(bool on)
{
    Ops::call<SET_INFORM_APP_ON_OK>(*this, mImplementation, on);
}

void SelectionField::setReadOnlyMode(bool on)
{
    Ops::call<SET_READ_ONLY_MODE>(*this, mImplementation, on);
}

bool SelectionField::getReadOnlyMode()
{
    return Ops::call<GET_READ_ONLY_MODE>(*this, mImplementation);
}

int SelectionField::getHighlightedIndex() const
{
    return Ops::call<GET_HIGHLIGHTED_INDEX>(*this, mImplementation);
}

void SelectionField::displayCurrentSelection(bool on)
{
    Ops::call<DISPLAY_CURRENT_SELECTION>(*this, mImplementation, on);
}

void SelectionField::setLabel(const std::string& label)
{
    Ops::call<SET_LABEL>(*this, mImplementation, label);
}

std::string SelectionField::getLabel() const
{
    return {};
}

void SelectionField::setContextMenuSuppressed() {}

} // namespace DisplayAPI
