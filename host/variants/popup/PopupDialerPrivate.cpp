#include "variants/popup/PopupDialerPrivate.h"

#include "host/variants/popup/PopupDialerImpl.h"
#include "utilities/ICC.h"

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

PopupSide::Popup& PopupDialerSide::popup()
{
    return *mImpl;
}

/// Asked for by the facade, or told by the display, which connects what it is about to show.
void PopupDialerSide::show()
{
    if (mImpl->isComingUp)
        mImpl->arrived();
    else
        mImpl->comeUp();
}

void PopupDialerSide::lostFocus()
{
    mImpl->letGo();
}

void PopupDialerSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    mImpl->isComingUp = display != nullptr;
    PopupSide::connectDisplayChangedSignal(display);
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
    mImpl->addListener(listener);
}

void PopupDialerSide::removeItemStateListener(ItemStateListener* listener)
{
    mImpl->removeListener(listener);
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
    const std::weak_ptr<void> life = mImpl->life();
    join(&below);
    mImpl->setEdited(OwnedText());
    if (!life.expired())
        show();
    return !life.expired() && mImpl->box != nullptr && mImpl->field->key(key);
}

void PopupDialerSide::dismiss()
{
    mImpl->leave();
}

int PopupDialerSide::getSelectedIndex()
{
    return mImpl->commands.selected();
}

bool PopupDialerSide::selectionHasChanged()
{
    return mImpl->commands.userHasMoved();
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

} // namespace DisplayAPI
