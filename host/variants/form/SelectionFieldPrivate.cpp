#include "variants/form/SelectionFieldPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "host/variants/form/ItemField.h"
#include "host/variants/menu/CommandTexts.h"
#include "host/widgets/form/ChoiceField.h"
#include "host/widgets/telephony/PhonebookIcons.h"

#include <algorithm>
#include <vector>

namespace DisplayAPI {

struct SelectionFieldSide::Impl : ItemField<host::ChoiceField> {
    Impl(TranslatedText itemLabel, MenuCommand* shown) : ItemField(std::move(itemLabel)), contents(shown)
    {
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
    void setContents(MenuCommand* command);
    void translate();

    CommandTexts texts;
    MenuCommand* contents;
    std::vector<MenuCommand*> choices;
    bool informs = false;
};

/// A command that has gone leaves its text behind.
void SelectionFieldSide::Impl::showContents()
{
    if (field == nullptr)
        return;
    if (auto text = texts.textOf(contents))
        field->setContents(std::move(*text));
}

void SelectionFieldSide::Impl::setContents(MenuCommand* command)
{
    contents = command;
    if (field != nullptr)
        field->setContents({});
    showContents();
}

void SelectionFieldSide::Impl::translate()
{
    showLabel();
    showContents();
    for (std::size_t i = 0; i < choices.size() && field != nullptr; ++i)
        if (auto text = texts.textOf(choices[i]))
            field->setText(static_cast<int>(i), std::move(*text));
}

/// Selection fields look alike on both panels; what differs is the form's. The one that a field stands in raises its
/// choices, also where it is not the one that it has been made for.
SelectionFieldSide::SelectionFieldSide(TranslatedText label, PhonebookItem::IconType icon, MenuCommand* contents, Form*,
                                       Panel)
    : mImpl(std::make_unique<Impl>(std::move(label), contents))
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
    mImpl->changed();
}

void SelectionFieldSide::setFieldContents(MenuCommand* command)
{
    mImpl->setContents(command);
    mImpl->changed();
}

void SelectionFieldSide::setSelectionIndex(int index)
{
    if (mImpl->field != nullptr)
        mImpl->field->select(index);
    mImpl->changed();
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
    mImpl->changed();
}

void SelectionFieldSide::clearSelections(MenuCommand* contents)
{
    mImpl->choices.clear();
    if (mImpl->field != nullptr)
        mImpl->field->clear();
    if (contents != nullptr)
        mImpl->setContents(contents);
    mImpl->changed();
}

void SelectionFieldSide::setInformAppOnOk(bool on)
{
    mImpl->informs = on;
}

void SelectionFieldSide::setReadOnlyMode(bool on)
{
    if (mImpl->field != nullptr)
        mImpl->field->setReadOnly(on);
    mImpl->changed();
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
    mImpl->changed();
}

void SelectionFieldSide::setLabel(const std::string& label)
{
    mImpl->setLabel(TranslatedText(label));
}

MenuCommand* SelectionFieldSide::commandForOk()
{
    return mImpl->informs ? getSelectionCommand() : nullptr;
}

} // namespace DisplayAPI
