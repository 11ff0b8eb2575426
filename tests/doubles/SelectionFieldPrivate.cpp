#include "variants/form/SelectionFieldPrivate.h"

#include "DisplayAPI/Form.h"
#include "DisplayAPI/MenuCommand.h"
#include "doubles/Answers.h"
#include "doubles/ItemSide.h"

namespace DisplayAPI {

/// The recording selection field.
struct SelectionFieldSide::Impl : doubles::ItemSide {
    using ItemSide::ItemSide;
};

SelectionFieldSide::SelectionFieldSide(TranslatedText label, PhonebookItem::IconType icon, MenuCommand* contents,
                                       Form* form, Panel panel)
    : mImpl(std::make_unique<Impl>("SelectionFieldPrivate", panel))
{
    mImpl->made(Impl::noted(label), static_cast<int>(icon), contents, form);
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
    return nullptr;
}

void SelectionFieldSide::releaseOwnership()
{
    mImpl->note("releaseOwnership");
}

void SelectionFieldSide::gainOwnership()
{
    mImpl->note("gainOwnership");
}

void SelectionFieldSide::localeChanged(std::string locale)
{
    mImpl->note("localeChanged", locale);
}

void SelectionFieldSide::setFieldContents(MenuCommand* command)
{
    mImpl->note("setFieldContents", command);
}

void SelectionFieldSide::setSelectionIndex(int index)
{
    mImpl->note("setSelectionIndex", index);
}

int SelectionFieldSide::getSelectionIndex()
{
    mImpl->note("getSelectionIndex");
    return 3;
}

void SelectionFieldSide::setSelectionCommand(MenuCommand* command)
{
    mImpl->note("setSelectionCommand", command);
}

MenuCommand* SelectionFieldSide::getSelectionCommand()
{
    mImpl->note("getSelectionCommand");
    return doubles::Answers::instance().command;
}

void SelectionFieldSide::appendSelection(MenuCommand* command)
{
    mImpl->note("appendSelection", command);
}

void SelectionFieldSide::clearSelections(MenuCommand* contents)
{
    mImpl->note("clearSelections", contents);
}

void SelectionFieldSide::setInformAppOnOk(bool on)
{
    mImpl->note("setInformAppOnOk", on);
}

void SelectionFieldSide::setReadOnlyMode(bool on)
{
    mImpl->note("setReadOnlyMode", on);
}

bool SelectionFieldSide::getReadOnlyMode()
{
    mImpl->note("getReadOnlyMode");
    return true;
}

int SelectionFieldSide::getHighlightedIndex()
{
    mImpl->note("getHighlightedIndex");
    return 4;
}

void SelectionFieldSide::displayCurrentSelection(bool on)
{
    mImpl->note("displayCurrentSelection", on);
}

void SelectionFieldSide::setLabel(const std::string& label)
{
    mImpl->note("setLabel", label);
}

} // namespace DisplayAPI
