#include "host/variants/popup/PopupDialerImpl.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/widgets/edit/EditKind.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

using Modes = std::vector<host::InputMode>;

Modes inputModes(PopupDialer::eMode mode)
{
    return mode == PopupDialer::EDITING ? host::modesOf(host::EditKind::NAME) : Modes{host::InputMode::NUMBERS};
}

std::string utf8(const PegString& text)
{
    return ICC::fromUNICODEtoUTF8(text);
}

} // namespace

PopupDialerSide::Impl::Impl(PopupDialerSide& dialer, PopupDialer* facade, bool wayBack)
    : EditPopup(dialer, facade, nullptr), leftGoesBack(wayBack)
{
    field->line().setPlusByLongZero(true);
}

void PopupDialerSide::Impl::goBack()
{
    if (leftGoesBack && raise(PopupDialer::BackCommand()))
        leave();
}

/// A display that is hidden has not brought it up.
void PopupDialerSide::Impl::letGo()
{
    isComingUp = false;
    EditPopup::letGo();
}

/// The text is no translation any more.
void PopupDialerSide::Impl::userHasEdited()
{
    edited = OwnedText();
    followEditField();
    tellEdited(nullptr);
}

void PopupDialerSide::Impl::opened()
{
    editFieldIsShown = false;
    EditPopup::opened();
}

void PopupDialerSide::Impl::arrived()
{
    isComingUp = false;
    followEditField();
    Popup::arrived();
}

/// It is shown while the dialer is, and no text stands in its place.
bool PopupDialerSide::Impl::showsEditField() const
{
    return isOnScreen() && (field->line().hint().empty() || !field->line().text().empty());
}

void PopupDialerSide::Impl::followEditField()
{
    const bool isShown = showsEditField();
    if (isShown && !editFieldIsShown)
        raise(PopupDialer::EditFieldShownCommand());
    editFieldIsShown = isShown;
}

void PopupDialerSide::Impl::set(OwnedText Impl::*which, OwnedText newText)
{
    this->*which = std::move(newText);
    showTexts();
}

void PopupDialerSide::Impl::setEdited(OwnedText newText)
{
    edited = std::move(newText);
    if (box == nullptr)
        return;
    field->line().setText(edited.shown());
    followEditField();
    changed();
}

void PopupDialerSide::Impl::setMode(PopupDialer::eMode mode)
{
    if (box == nullptr)
        return;
    field->line().setModes(inputModes(mode));
    field->line().setHidden(mode == PopupDialer::HIDDEN);
    changed();
}

void PopupDialerSide::Impl::setStimulusInHeader(bool on)
{
    stimulusInHeader = on;
    showTexts();
}

void PopupDialerSide::Impl::showTexts()
{
    if (box == nullptr)
        return;
    field->setPrefix(prefix.shown());
    field->setSecond(second.shown());
    field->line().setHint(text.shown());
    box->setHeader(stimulusInHeader ? stimulus.shown() : PegString());
    followEditField();
    layOut();
    changed();
}

/// A command that has gone keeps the text that it had, and so does what the user has typed.
void PopupDialerSide::Impl::languageChanged()
{
    commands.translate();
    if (box != nullptr && edited.isTranslated())
        field->line().setText(edited.shown());
    showTexts();
}

std::string PopupDialerSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string contents;
    if (isVisible(box->headerArea(), visible))
        contents += screen::caption(utf8(box->header()));
    if (isVisible(field->Area(), visible))
        contents += screen::textLine(0, utf8(field->prefix()) + utf8(field->line().masked()));
    if (isVisible(field->secondArea(), visible))
        contents += screen::textLine(1, utf8(field->second()));
    return screen::object("PopupDialer", contents + commands.asText(visible));
}

} // namespace DisplayAPI
