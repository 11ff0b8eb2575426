#include "variants/form/SelectionFieldPrivate.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/MenuCommand.h"
#include "host/variants/form/ItemField.h"
#include "host/variants/menu/CommandTexts.h"
#include "host/widgets/form/ChoiceField.h"
#include "host/widgets/telephony/PhonebookIcons.h"

#include <algorithm>
#include <vector>

namespace DisplayAPI {

struct SelectionFieldSide::Impl : ItemField<host::ChoiceField> {
    Impl(TranslatedText itemLabel, MenuCommand* shown, Form* itsForm)
        : ItemField(std::move(itemLabel)), contents(shown), form(itsForm)
    {
        field->setChosen([this](int choice) { inform(choice); });
        showContents();
    }

    MenuCommand* at(int choice) const
    {
        if (choice < 0 || choice >= static_cast<int>(choices.size()))
            return nullptr;
        MenuCommand* const command = choices[static_cast<std::size_t>(choice)];
        return Command::exists(command) ? command : nullptr;
    }

    void showContents();
    void translate();
    void inform(int choice);

    CommandTexts texts;
    MenuCommand* contents;
    Form* const form;
    std::vector<MenuCommand*> choices;
    bool informs = false;
};

/// A command that has gone leaves its text behind.
void SelectionFieldSide::Impl::showContents()
{
    if (field == nullptr)
        return;
    if (contents == nullptr)
        field->setContents({});
    else if (auto text = texts.textOf(contents))
        field->setContents(std::move(*text));
}

void SelectionFieldSide::Impl::translate()
{
    showLabel();
    showContents();
    for (std::size_t i = 0; i < choices.size() && field != nullptr; ++i)
        if (auto text = texts.textOf(choices[i]))
            field->setText(static_cast<int>(i), std::move(*text));
}

/// The form that it is made for raises it, where the field stands in one.
void SelectionFieldSide::Impl::inform(int choice)
{
    MenuCommand* const chosen = at(choice);
    if (!informs || chosen == nullptr || form == nullptr || field->Parent() == nullptr)
        return;
    if (auto* const side = dynamic_cast<DisplayablePrivate*>(form->getPrivateImpl()))
        side->postCommand(chosen, form);
}

/// Selection fields look alike on both panels; what differs is the form's.
SelectionFieldSide::SelectionFieldSide(TranslatedText label, PhonebookItem::IconType icon, MenuCommand* contents,
                                       Form* form, Panel)
    : mImpl(std::make_unique<Impl>(std::move(label), contents, form))
{
    mImpl->field->setIcon(host::phonebookIcon(icon));
}

SelectionFieldSide::~SelectionFieldSide() = default;

SelectionFieldPrivate::SelectionFieldPrivate(const std::string& label, PhonebookItem::IconType icon,
                                             MenuCommand* contents, Form* form)
    : SelectionFieldSide(TranslatedText(label), icon, contents, form, Panel::FULL)
{
}

SelectionFieldPrivate::SelectionFieldPrivate(TranslationInfo* label, PhonebookItem::IconType icon,
                                             MenuCommand* contents, Form* form)
    : SelectionFieldSide(TranslatedText(label), icon, contents, form, Panel::FULL)
{
}

SelectionFieldPrivateWP1::SelectionFieldPrivateWP1(const std::string& label, PhonebookItem::IconType icon,
                                                   MenuCommand* contents, Form* form)
    : SelectionFieldSide(TranslatedText(label), icon, contents, form, Panel::SMALL)
{
}

SelectionFieldPrivateWP1::SelectionFieldPrivateWP1(TranslationInfo* label, PhonebookItem::IconType icon,
                                                   MenuCommand* contents, Form* form)
    : SelectionFieldSide(TranslatedText(label), icon, contents, form, Panel::SMALL)
{
}

PegThing* SelectionFieldSide::getWidget()
{
    return mImpl->field.get();
}

void SelectionFieldSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void SelectionFieldSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void SelectionFieldSide::localeChanged(std::string)
{
    mImpl->translate();
}

void SelectionFieldSide::setFieldContents(MenuCommand* command)
{
    mImpl->contents = command;
    mImpl->showContents();
}

void SelectionFieldSide::setSelectionIndex(int index)
{
    if (mImpl->field != nullptr)
        mImpl->field->select(index);
}

int SelectionFieldSide::getSelectionIndex()
{
    return mImpl->field != nullptr ? mImpl->field->selected() : -1;
}

void SelectionFieldSide::setSelectionCommand(MenuCommand* command)
{
    const auto found = std::ranges::find(mImpl->choices, command);
    if (found != mImpl->choices.end())
        setSelectionIndex(static_cast<int>(found - mImpl->choices.begin()));
}

MenuCommand* SelectionFieldSide::getSelectionCommand()
{
    return mImpl->at(getSelectionIndex());
}

/// One that has gone already is a choice without a text: the others keep their numbers.
void SelectionFieldSide::appendSelection(MenuCommand* command)
{
    mImpl->choices.push_back(command);
    if (mImpl->field != nullptr)
        mImpl->field->append(mImpl->texts.entryOf(command, nullptr, false).value_or(host::CommandColumn::Entry()));
}

void SelectionFieldSide::clearSelections(MenuCommand* contents)
{
    mImpl->choices.clear();
    if (mImpl->field != nullptr)
        mImpl->field->clear();
    if (contents != nullptr)
        setFieldContents(contents);
}

void SelectionFieldSide::setInformAppOnOk(bool on)
{
    mImpl->informs = on;
}

void SelectionFieldSide::setReadOnlyMode(bool on)
{
    if (mImpl->field != nullptr)
        mImpl->field->setReadOnly(on);
}

bool SelectionFieldSide::getReadOnlyMode()
{
    return mImpl->field != nullptr && mImpl->field->isReadOnly();
}

int SelectionFieldSide::getHighlightedIndex()
{
    return mImpl->field != nullptr ? mImpl->field->highlighted() : -1;
}

void SelectionFieldSide::displayCurrentSelection(bool on)
{
    if (mImpl->field != nullptr)
        mImpl->field->setShowsSelection(on);
}

void SelectionFieldSide::setLabel(const std::string& label)
{
    mImpl->setLabel(TranslatedText(label));
}

} // namespace DisplayAPI
