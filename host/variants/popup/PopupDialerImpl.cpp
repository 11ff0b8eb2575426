#include "host/variants/popup/PopupDialerImpl.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

using Modes = std::vector<host::InputMode>;

Modes inputModes(PopupDialer::eMode mode)
{
    using host::InputMode;
    if (mode != PopupDialer::EDITING)
        return {InputMode::NUMBERS};
    return {InputMode::CAPITALISED, InputMode::LOWER, InputMode::UPPER, InputMode::NUMBERS};
}

std::string utf8(const PegString& text)
{
    return ICC::fromUNICODEtoUTF8(text);
}

} // namespace

PopupDialerSide::Impl::Impl(PopupDialerSide& dialer, PopupDialer* facade, bool wayBack)
    : Popup(dialer, facade, nullptr), leftGoesBack(wayBack)
{
    field->setMessageTarget(this);
    field->line().setMessageTarget(this);
    field->line().setPlusByLongZero(true);
    box->setField(field);
}

PopupDialerSide::Impl::~Impl()
{
    if (box == nullptr)
        return;
    field->setMessageTarget(nullptr);
    field->line().setMessageTarget(nullptr);
}

void PopupDialerSide::Impl::hear(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: message.pSource == &field->line() ? userHasEdited() : moved(); break;
    case PM_CLICKED: choose(message.iData); break;
    case PM_LEFT: goBack(); break;
    case PM_KEY: key(message.iData); break;
    default: break;
    }
}

/// What neither the field nor the bar has a use for. The left key is the edit line's: up and down move in the bar, too.
void PopupDialerSide::Impl::key(int key)
{
    if (key == PK_UP)
        moveTo(box->bar().current() - 1);
    else if (key == PK_DOWN)
        moveTo(box->bar().current() + 1);
}

void PopupDialerSide::Impl::moveTo(int command)
{
    const int before = box->bar().current();
    box->bar().setCurrent(command);
    if (box->bar().current() != before)
        moved();
}

void PopupDialerSide::Impl::moved()
{
    commands.userMoved();
    changed();
}

void PopupDialerSide::Impl::choose(int command)
{
    if (Command* const chosen = commands.at(command))
        raise(chosen);
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
    if (box != nullptr)
        field->released(0);
}

/// The text is no translation any more.
void PopupDialerSide::Impl::userHasEdited()
{
    edited = OwnedText();
    followEditField();
    for (ItemStateListener* const listener : listeners)
        listener->postItemStateChange(nullptr);
    changed();
}

void PopupDialerSide::Impl::opened()
{
    editFieldIsShown = false;
    commands.begin();
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

/// On two lines the bar's room is that of the second line.
void PopupDialerSide::Impl::layOut()
{
    field->setRoomForSecond(!host::hasTwoLines() || box->bar().count() == 0);
    box->fitField();
}

void PopupDialerSide::Impl::add(MenuCommand* command)
{
    if (!commands.add(command))
        return;
    layOut();
    changed();
}

void PopupDialerSide::Impl::remove(MenuCommand* command)
{
    if (!commands.remove(command))
        return;
    layOut();
    changed();
}

void PopupDialerSide::Impl::clear()
{
    commands.clear();
    if (box == nullptr)
        return;
    layOut();
    changed();
}

void PopupDialerSide::Impl::setDefault(MenuCommand* command)
{
    commands.setDefault(command);
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
        contents += screen::textLine(0, utf8(field->prefix()) + utf8(field->line().shown()));
    if (isVisible(field->secondArea(), visible))
        contents += screen::textLine(1, utf8(field->second()));
    return screen::object("PopupDialer", contents + commands.asText(visible));
}

} // namespace DisplayAPI
