#include "variants/popup/PopupDialerPrivate.h"

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplayAPI/Rectangles.h"
#include "host/variants/popup/BringUp.h"
#include "host/variants/popup/PopupDialerImpl.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

PopupDialerSide::PopupDialerSide(PopupDialer* owner, bool wayBack, Panel)
    : mImpl(std::make_unique<Impl>(*this, owner, wayBack))
{
}

PopupDialerSide::~PopupDialerSide() = default;

PopupDialerPrivate::PopupDialerPrivate(PopupDialer* owner) : PopupDialerSide(owner, true, Panel::FULL) {}

PopupDialerPrivateWP1::PopupDialerPrivateWP1(PopupDialer* owner, bool wayBack)
    : PopupDialerSide(owner, wayBack, Panel::SMALL)
{
}

PegThing* PopupDialerSide::getWidget()
{
    return mImpl->box.get();
}

void PopupDialerSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void PopupDialerSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Asked for by the facade, or told by the display, which connects what it is about to show.
void PopupDialerSide::show()
{
    const bool isCurrent = display() != nullptr && display()->getCurrent() == mImpl->owner && mImpl->isOnScreen();
    if (mImpl->isComingUp || isCurrent)
        mImpl->arrived();
    else
        bringUp(mImpl->owner, display());
}

void PopupDialerSide::lostFocus()
{
    mImpl->letGo();
}

bool PopupDialerSide::hideOldWidgetOnFocusGained()
{
    return false; // a popup leaves what is below it on screen
}

void PopupDialerSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
    mImpl->isComingUp = display != nullptr;
    if (display != nullptr && mImpl->box != nullptr && mImpl->box->Parent() == nullptr)
        mImpl->opened();
}

std::string PopupDialerSide::serialise()
{
    const PegThing* const box = getWidget();
    return box != nullptr ? mImpl->asText({toRect(box->Area())}) : std::string();
}

std::string PopupDialerSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void PopupDialerSide::destroy()
{
    delete this;
}

void PopupDialerSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void PopupDialerSide::setLine1PrefixText(std::string text)
{
    mImpl->set(&Impl::prefix, OwnedText(std::move(text)));
}

void PopupDialerSide::setLine1PrefixText(TranslationInfo* text)
{
    mImpl->set(&Impl::prefix, OwnedText(text));
}

void PopupDialerSide::setText(std::string text)
{
    mImpl->set(&Impl::text, OwnedText(std::move(text)));
}

void PopupDialerSide::setText(TranslationInfo* text)
{
    mImpl->set(&Impl::text, OwnedText(text));
}

void PopupDialerSide::setLine2Text(std::string text)
{
    mImpl->set(&Impl::second, OwnedText(std::move(text)));
}

void PopupDialerSide::setLine2Text(TranslationInfo* text)
{
    mImpl->set(&Impl::second, OwnedText(text));
}

std::string PopupDialerSide::getLineEditText()
{
    return mImpl->box != nullptr ? ICC::fromUNICODEtoUTF8(mImpl->field->line().text()) : std::string();
}

void PopupDialerSide::setLineEditText(std::string text)
{
    mImpl->setEdited(OwnedText(std::move(text)));
}

void PopupDialerSide::setLineEditText(TranslationInfo* text)
{
    mImpl->setEdited(OwnedText(text));
}

void PopupDialerSide::addItemStateListener(ItemStateListener* listener)
{
    if (listener != nullptr && std::ranges::find(mImpl->listeners, listener) == mImpl->listeners.end())
        mImpl->listeners.push_back(listener);
}

void PopupDialerSide::removeItemStateListener(ItemStateListener* listener)
{
    std::erase(mImpl->listeners, listener);
}

void PopupDialerSide::addCommand(MenuCommand* command)
{
    mImpl->add(command);
}

void PopupDialerSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->setDefault(command);
}

void PopupDialerSide::removeCommand(MenuCommand* command)
{
    mImpl->remove(command);
}

void PopupDialerSide::setMode(PopupDialer::eMode mode)
{
    mImpl->setMode(mode);
}

void PopupDialerSide::setEditMode()
{
    mImpl->setMode(PopupDialer::EDITING);
}

void PopupDialerSide::setIgnoreKeypadEvents(bool on)
{
    if (mImpl->box != nullptr)
        mImpl->field->setIgnoresKeypad(on);
}

void PopupDialerSide::clearCommands()
{
    mImpl->clear();
}

bool PopupDialerSide::openWith(int key, DisplayablePrivate& below)
{
    if (mImpl->box == nullptr || !mImpl->field->types(key))
        return false;
    join(&below);
    mImpl->setEdited(OwnedText());
    show();
    return mImpl->box != nullptr && mImpl->field->key(key);
}

void PopupDialerSide::dismiss()
{
    mImpl->leave();
}

int PopupDialerSide::getSelectedIndex()
{
    return mImpl->box != nullptr ? mImpl->box->bar().current() : -1;
}

bool PopupDialerSide::selectionHasChanged()
{
    return mImpl->userHasMoved;
}

void PopupDialerSide::setStimulusText(std::string text)
{
    mImpl->set(&Impl::stimulus, OwnedText(std::move(text)));
}

void PopupDialerSide::setStimulusText(TranslationInfo* text)
{
    mImpl->set(&Impl::stimulus, OwnedText(text));
}

void PopupDialerSide::showStimulusTextInHeader(bool on)
{
    mImpl->setStimulusInHeader(on);
}

void PopupDialerSide::setSysWindowSize(int lines)
{
    if (mImpl->box != nullptr)
        mImpl->box->setStatusLines(lines);
}

void PopupDialerSide::setSysWindowText(std::string text, int line)
{
    if (mImpl->box != nullptr)
        mImpl->box->setStatusText(line, std::move(text));
}

/// On two lines the system window pops up instead.
bool PopupDialerSide::hasSystemWindow()
{
    return mImpl->box != nullptr && !host::hasTwoLines();
}

} // namespace DisplayAPI
