#include "DisplayAPI/Form.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/FormPrivateIfc.h"
#include "DisplayAPI/Item.h"
#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/SelectionField.h"
#include "GuiThread.h"
#include "Operations.h"
#include "Survival.h"
#include "Variant.h"
#include "variants/form/FormPrivate.h"

#include <algorithm>
#include <unordered_set>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    APPEND = 2,
    GET_SELECTED = 3,
    SET_SELECTED = 4,
    SET_TITLE = 5,
    SET_TITLE_TRANSLATED = 6,
    TITLE = 7,
    SET_READONLY = 8,
    IS_READONLY = 9,
    SET_CLIPBOARD = 10,
    GET_CLIPBOARD = 11,
    SET_SPELLER_LANGUAGE = 12,
    ADD_COMMAND = 13,
    CLEAR_COMMANDS = 14
};

using Ifc = FormPrivateIfc;

/// The forms that items have been put into. Never destroyed: a static one leaves it as late as at process exit.
std::unordered_set<const Displayable*>& formsWithItems()
{
    static auto* const forms = new std::unordered_set<const Displayable*>;
    return *forms;
}

} // namespace

struct Form::Ops
    : Operations<Waits<CREATE, &Form::create>, Waits<DESTROY, &Form::destroy>, Waits<APPEND, &Form::appendItem>,
                 Waits<GET_SELECTED, &Ifc::getSelected>, Waits<SET_SELECTED, &Ifc::setSelected>,
                 Waits<SET_TITLE, taking<std::string>(&Ifc::setTitle)>,
                 Waits<SET_TITLE_TRANSLATED, taking<TranslationInfo*>(&Ifc::setTitle)>, Waits<TITLE, &Ifc::title>,
                 Waits<SET_READONLY, &Ifc::setReadonly>, Waits<IS_READONLY, &Ifc::isReadonly>,
                 Waits<SET_CLIPBOARD, &Ifc::setClipboard>, Waits<GET_CLIPBOARD, &Ifc::getClipboard>,
                 Waits<SET_SPELLER_LANGUAGE, &Ifc::setSpellerLanguage>, Waits<ADD_COMMAND, &Form::appendCommand>,
                 Waits<CLEAR_COMMANDS, &Form::forgetCommands>> {};

Form::Form(FormProportionType proportion)
{
    Ops::call<CREATE>(*this, mImplementation, proportion);
}

Form::Form(FormPrivateIfc* implementation) : mImplementation(implementation) {}

Form::~Form()
{
    Ops::call<DESTROY>(*this, mImplementation);
    if (mImplementation != nullptr)
        formsWithItems().erase(this); // the request was lost, and nobody runs the queue any more
}

void Form::create(FormProportionType proportion)
{
    name = "Form";
    if (isFullPanelHardware())
        mImplementation = new FormPrivate(this, proportion);
    else
        mImplementation = new FormPrivateWP1(this, proportion);
}

void Form::destroy()
{
    formsWithItems().erase(this);
    deletePrivateSide(mImplementation);
    clear();
}

void Form::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* Form::getPrivateImpl()
{
    return mImplementation;
}

Command* Form::CURRENT_ITEM_CHANGED_COMMAND()
{
    static Command command("current item changed", Command::ITEM);
    return &command;
}

Command* Form::CLIPBOARD_CHANGED_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

Command* Form::SELECTION_CHANGED_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

Command* Form::SELECTION_DISPLAY_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

Command* Form::SAVE_COMMAND()
{
    static Command command("", Command::SAVE);
    return &command;
}

Command* Form::OK_COMMAND()
{
    static Command command("", Command::OK);
    return &command;
}

Command* Form::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

void Form::append(Item* item)
{
    Ops::call<APPEND>(*this, mImplementation, item);
}

void Form::setFormOptions(SelectionField* field)
{
    append(field);
}

void Form::appendItem(Item* item)
{
    if (item == nullptr)
        return;
    takeFromFormer(item);
    item->setParent(this);
    const bool isNew = std::ranges::find(items, item) == items.end();
    if (!showItem(item)) {
        if (isNew)
            delete item;
        return;
    }
    if (isNew)
        items.push_back(item);
}

/// False where whoever observes the screen has deleted the form at that.
bool Form::showItem(Item* item)
{
    if (mImplementation == nullptr)
        return true;
    const Survival survival(this);
    ItemPrivateIfc* const side = item->getPrivateImpl();
    mImplementation->append(item, side != nullptr ? side->getWidget() : nullptr);
    if (survival)
        mImplementation->own(item->getPrivateImpl());
    return static_cast<bool>(survival);
}

/// One form deletes it. The parent that an item has been told may be gone, or be no form.
void Form::takeFromFormer(Item* item)
{
    formsWithItems().insert(this);
    Displayable* const parent = item->getParent();
    if (parent != this && formsWithItems().contains(parent))
        std::erase(static_cast<Form*>(parent)->items, item);
}

void Form::insertItem(Item*, int) {}

int Form::removeItem(unsigned int)
{
    return 0;
}

/// An item is none of the form's any more while it goes: whoever hears of that may ask for the others. Whoever observes
/// the screen is told once, and may delete the form.
void Form::clear()
{
    onlyOnGuiThread("Form::clear()");
    const bool wasEmpty = items.empty();
    while (!items.empty()) {
        Item* const last = items.back();
        items.pop_back();
        delete last;
    }
    commands.clear();
    auto* const side = dynamic_cast<DisplayablePrivate*>(mImplementation);
    if (side != nullptr && !wasEmpty)
        side->generateDisplayChangedEvent();
}

Item* Form::getSelected()
{
    return Ops::call<GET_SELECTED>(*this, mImplementation);
}

void Form::setSelected(Item* item)
{
    Ops::call<SET_SELECTED>(*this, mImplementation, item);
}

void Form::setTitle(const std::string& title)
{
    Ops::call<SET_TITLE>(*this, mImplementation, title);
}

/// On the recorded GUI thread nobody else could run the queue.
void Form::setTitle(TranslationInfo* title)
{
    auto record = std::make_unique<GuiRequestEvent>(this, SET_TITLE_TRANSLATED);
    record->ptrParam1 = title;
    if (isRecordedGuiThread())
        processGuiRequest(*record);
    else
        postEvent(record.release());
}

std::string Form::title()
{
    return Ops::call<TITLE>(*this, mImplementation);
}

void Form::setReadonly(bool on)
{
    Ops::call<SET_READONLY>(*this, mImplementation, on);
}

bool Form::isReadonly()
{
    return Ops::call<IS_READONLY>(*this, mImplementation);
}

void Form::setClipboard(const std::string& text)
{
    Ops::call<SET_CLIPBOARD>(*this, mImplementation, text);
}

std::string Form::getClipboard()
{
    return Ops::call<GET_CLIPBOARD>(*this, mImplementation);
}

void Form::setSpellerLanguage(TranslatorIfc* translator)
{
    Ops::call<SET_SPELLER_LANGUAGE>(*this, mImplementation, translator);
}

void Form::setCurrentLanguageFixed() {}

void Form::addCommand(Command* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void Form::appendCommand(Command* command)
{
    const Survival survival(this);
    if (mImplementation != nullptr)
        mImplementation->addCommand(command);
    if (survival)
        commands.push_back(command);
}

void Form::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

void Form::forgetCommands()
{
    const Survival survival(this);
    if (mImplementation != nullptr)
        mImplementation->clearCommands();
    if (survival)
        commands.clear();
}

void Form::addCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addCommandListener(listener);
}

void Form::setAlternativeCommandHandling(bool on)
{
    if (mImplementation != nullptr)
        mImplementation->setAlternativeCommandHandling(on);
}

} // namespace DisplayAPI
