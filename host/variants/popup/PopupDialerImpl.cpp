#include "host/variants/popup/PopupDialerImpl.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/ICC.h"

#include <algorithm>

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
    : self(dialer), owner(facade), leftGoesBack(wayBack)
{
    field->setMessageTarget(this);
    field->line().setMessageTarget(this);
    field->line().setPlusByLongZero(true);
    box->setMessageTarget(this);
    box->setField(field);
}

PopupDialerSide::Impl::~Impl()
{
    if (box == nullptr)
        return;
    box->setMessageTarget(nullptr);
    field->setMessageTarget(nullptr);
    field->line().setMessageTarget(nullptr);
}

int PopupDialerSide::Impl::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: message.pSource == &field->line() ? userHasEdited() : moved(); break;
    case PM_CLICKED: choose(message.iData); break;
    case PM_LEFT: goBack(); break;
    case PM_KEY: key(message.iData); break;
    case PM_APPLICATION_CHANGED: languageChanged(); break;
    default: return PegThing::Message(message);
    }
    return 0;
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
    userHasMoved = true;
    changed();
}

void PopupDialerSide::Impl::choose(int command)
{
    MenuCommand* const chosen = commands.at(static_cast<std::size_t>(command));
    if (Command::exists(chosen))
        self.postCommand(chosen, owner);
}

void PopupDialerSide::Impl::goBack()
{
    if (!leftGoesBack)
        return;
    self.postCommand(PopupDialer::BackCommand(), owner);
    leave();
}

void PopupDialerSide::Impl::letGo()
{
    isComingUp = false;
    if (box != nullptr)
        field->released(0);
}

/// A display that is hidden has not brought it up.
void PopupDialerSide::Impl::leave()
{
    letGo();
    self.widgetDismissed(&self);
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
    userHasMoved = false;
    selectDefault();
}

void PopupDialerSide::Impl::arrived()
{
    isComingUp = false;
    followEditField();
    self.generateDisplayChangedEvent();
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
        self.postCommand(PopupDialer::EditFieldShownCommand(), owner);
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
    const auto label = texts.textOf(command);
    if (box == nullptr || !label)
        return;
    commands.push_back(command);
    box->bar().append(*label);
    if (command == defaultCommand && !userHasMoved)
        selectDefault();
    layOut();
    changed();
}

void PopupDialerSide::Impl::remove(MenuCommand* command)
{
    const auto found = std::ranges::find(commands, command);
    if (box == nullptr || found == commands.end())
        return;
    box->bar().remove(static_cast<int>(found - commands.begin()));
    commands.erase(found);
    layOut();
    changed();
}

void PopupDialerSide::Impl::clear()
{
    commands.clear();
    defaultCommand = nullptr;
    userHasMoved = false;
    if (box == nullptr)
        return;
    box->bar().setCommands({});
    layOut();
    changed();
}

void PopupDialerSide::Impl::setDefault(MenuCommand* command)
{
    defaultCommand = command;
    if (userHasMoved)
        return;
    selectDefault();
    changed();
}

void PopupDialerSide::Impl::selectDefault()
{
    if (box == nullptr)
        return;
    const auto found = std::ranges::find(commands, defaultCommand);
    box->bar().setCurrent(found != commands.end() ? static_cast<int>(found - commands.begin()) : 0);
}

/// A command that has gone keeps the text that it had, and so does what the user has typed.
void PopupDialerSide::Impl::languageChanged()
{
    if (box == nullptr)
        return;
    for (std::size_t i = 0; i < commands.size(); ++i)
        if (auto label = texts.textOf(commands[i]))
            box->bar().setText(static_cast<int>(i), std::move(*label));
    if (edited.isTranslated())
        field->line().setText(edited.shown());
    showTexts();
}

void PopupDialerSide::Impl::changed()
{
    if (isOnScreen())
        self.generateDisplayChangedEvent();
}

std::string PopupDialerSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (box == nullptr || !isVisible(box->Area(), visible))
        return {};
    std::string contents;
    if (isVisible(box->headerArea(), visible))
        contents += screen::caption(utf8(box->header()));
    if (isVisible(field->Area(), visible))
        contents += screen::textLine(0, utf8(field->prefix()) + utf8(field->line().shown()));
    if (isVisible(field->secondArea(), visible))
        contents += screen::textLine(1, utf8(field->second()));
    for (const host::CommandBar::Cell& cell : box->bar().cells())
        if (isVisible(cell.area, visible))
            contents += screen::subItem("MenuCommand", screen::textLine(0, utf8(box->bar().text(cell.command))));
    return screen::object("PopupDialer", contents);
}

} // namespace DisplayAPI
