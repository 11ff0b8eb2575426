#include "host/variants/form/FormImpl.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Item.h"
#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/StatusText.h"
#include "host/widgets/form/ChoicePopup.h"
#include "utilities/ICC.h"
#include "variants/form/SelectionFieldPrivate.h"
#include "variants/form/TextFieldPrivate.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace DisplayAPI {

namespace {

/// In hundredths of a line.
int shareOfLabels(Form::FormProportionType proportion)
{
    switch (proportion) {
    case Form::SHORT_LABELS: return 33;
    case Form::LONG_LABELS: return 67;
    case Form::LABELS_ABOVE: return 100;
    default: return 50;
    }
}

const PegThing* widgetOf(Item* item)
{
    ItemPrivateIfc* const side = item != nullptr ? item->getPrivateImpl() : nullptr;
    return side != nullptr ? side->getWidget() : nullptr;
}

} // namespace

FormSide::Impl::Impl(FormSide& form, Form* facade, Form::FormProportionType proportion, Panel panelOfForm)
    : self(form), owner(facade), panel(panelOfForm),
      window(std::in_place_type<host::FormWindow>, shareOfLabels(proportion))
{
    window->setListener(this);
}

FormSide::Impl::~Impl()
{
    if (window != nullptr)
        window->setListener(nullptr);
}

int FormSide::Impl::Message(const PegMessage& message)
{
    if (message.wType != PM_APPLICATION_CHANGED)
        return PegThing::Message(message);
    if (message.iData == KestrelApplication::LOCALE)
        languageChanged(ICC::fromUNICODEtoASCII(*static_cast<const PegString*>(message.pData)));
    return 0;
}

void FormSide::Impl::languageChanged(const std::string& locale)
{
    if (mTyping)
        SpellerLanguage::apply();
    if (window == nullptr)
        return;
    mIsTranslating = true;
    window->setTitle(title.shown());
    commands.translate();
    translateItems(locale);
    window->turn();
    mIsTranslating = false;
    changed();
}

void FormSide::Impl::translateItems(const std::string& locale)
{
    if (owner == nullptr)
        return;
    for (Item* item : owner->getItems())
        if (ItemPrivateIfc* const side = item->getPrivateImpl())
            side->localeChanged(locale);
}

bool FormSide::Impl::raise(Command* command)
{
    const std::weak_ptr<void> life = mLife;
    self.postCommand(command, owner);
    return !life.expired();
}

void FormSide::Impl::currentChanged()
{
    if (raise(Form::CURRENT_ITEM_CHANGED_COMMAND()))
        changed();
}

void FormSide::Impl::valueChanged(host::FormField& field)
{
    if (owner != nullptr)
        if (Item* const item = itemOf(&field))
            owner->callListeners(item);
    if (raise(Form::SELECTION_CHANGED_COMMAND()))
        changed();
}

void FormSide::Impl::choicesShown(host::FormField&)
{
    if (raise(Form::SELECTION_DISPLAY_COMMAND()))
        changed();
}

/// Null where the field's item is of another kind.
template <typename Side>
Side* FormSide::Impl::sideOf(const host::FormField* field) const
{
    Item* const item = itemOf(field);
    return item != nullptr ? dynamic_cast<Side*>(item->getPrivateImpl()) : nullptr;
}

/// What is raised first may be the end of the field, which is none of the form's then.
void FormSide::Impl::chosen(host::FormField& field, bool isOther)
{
    if (!informOfChoice(field))
        return;
    if (isOther)
        valueChanged(field);
    else
        changed();
}

bool FormSide::Impl::informOfChoice(const host::FormField& field)
{
    auto* const side = sideOf<SelectionFieldSide>(&field);
    Command* const command = side != nullptr ? side->commandForOk() : nullptr;
    return command == nullptr || raise(command);
}

/// One that has been deleted meanwhile is none any more.
void FormSide::Impl::commandChosen(int command)
{
    Command* const chosen = commands.at(command);
    if (chosen == nullptr || raise(chosen))
        changed();
}

void FormSide::Impl::formKey(int key)
{
    if (key == PK_LEFT)
        self.postCommand(Form::BACK_COMMAND(), owner);
    else if (key == PK_OK)
        self.postCommand(commandForOk(), owner);
}

/// A text field may have its own.
Command* FormSide::Impl::commandForOk() const
{
    auto* const side = sideOf<TextFieldSide>(window->current());
    Command* const own = side != nullptr ? side->commandForOk() : nullptr;
    if (own != nullptr)
        return own;
    return okSaves ? Form::SAVE_COMMAND() : Form::OK_COMMAND();
}

void FormSide::Impl::append(PegThing* item)
{
    auto* const field = dynamic_cast<host::FormField*>(item);
    if (window == nullptr || field == nullptr)
        return;
    window->append(field);
    changed();
}

void FormSide::Impl::select(Item* item)
{
    if (window == nullptr || owner == nullptr || std::ranges::count(owner->getItems(), item) == 0)
        return;
    window->setCurrent(dynamic_cast<const host::FormField*>(widgetOf(item)));
    changed();
}

Item* FormSide::Impl::itemOf(const host::FormField* field) const
{
    if (owner == nullptr || field == nullptr)
        return nullptr;
    const std::vector<Item*>& items = owner->getItems();
    const auto found = std::ranges::find(items, field, &widgetOf);
    return found != items.end() ? *found : nullptr;
}

void FormSide::Impl::setTitle(TranslatedText text)
{
    title = std::move(text);
    if (window != nullptr)
        window->setTitle(title.shown());
    changed();
}

void FormSide::Impl::setClipboard(std::string text)
{
    if (text == clipboard)
        return;
    clipboard = std::move(text);
    self.postCommand(Form::CLIPBOARD_CHANGED_COMMAND(), owner);
}

void FormSide::Impl::setSpeller(TranslatorIfc* translator)
{
    mSpeller = translator;
    mTyping.reset();
    gotUser(mHasUser);
}

/// All editors of the process type alike: the form's language ends where something else has the user, and comes before
/// those of other displays' forms where he is back.
void FormSide::Impl::gotUser(bool on)
{
    mHasUser = on;
    if (!on && window != nullptr)
        window->letGo();
    if (on && mTyping && mTyping->counts())
        return;
    mTyping.reset();
    if (on && mSpeller != nullptr)
        mTyping.emplace(*mSpeller);
}

void FormSide::Impl::changed()
{
    if (!mIsTranslating && window != nullptr && window->StatusIs(PSF_VISIBLE))
        self.generateDisplayChangedEvent();
}

std::string FormSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (window == nullptr || !isVisible(window->Area(), visible))
        return {};
    const std::vector<DisplayAPIUtils::Rect> beside = besideChoices(visible);
    std::string contents;
    if (isVisible(window->titleArea(), beside))
        contents += screen::caption(title.text());
    contents += statusAsText(window->status(), beside) + fieldsAsText(beside) + commands.asText(beside) +
                choicesAsText(visible);
    return screen::object("Form", contents);
}

/// What the open choices leave of it.
std::vector<DisplayAPIUtils::Rect>
FormSide::Impl::besideChoices(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (window->opened() == nullptr)
        return visible;
    const std::vector<DisplayAPIUtils::Rect> choices{toRect(window->opened()->Area())};
    std::vector<DisplayAPIUtils::Rect> beside;
    for (const DisplayAPIUtils::Rect& part : visible)
        std::ranges::copy(part.subtract(choices), std::back_inserter(beside));
    return beside;
}

std::string FormSide::Impl::fieldsAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string text;
    for (const host::Field* each : window->column().inSight()) {
        if (!isVisible(each->Area(), visible))
            continue;
        const auto& field = static_cast<const host::FormField&>(*each);
        text += screen::subItem("FormItem", screen::textLine(0, ICC::fromUNICODEtoUTF8(field.label())) +
                                                screen::textLine(1, ICC::fromUNICODEtoUTF8(field.value())));
    }
    return text;
}

std::string FormSide::Impl::choicesAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    const auto* const popup = dynamic_cast<const host::ChoicePopup*>(window->opened());
    if (popup == nullptr)
        return {};
    const host::CommandColumn& choices = popup->column();
    std::string text;
    for (int row = choices.top(); row < choices.count(); ++row)
        if (isVisible(choices.rowArea(row), visible))
            text += screen::subItem("MenuCommand", screen::textLine(0, ICC::fromUNICODEtoUTF8(choices.at(row).text)));
    return text;
}

} // namespace DisplayAPI
