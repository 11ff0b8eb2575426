#include "host/variants/popup/Popup.h"

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "host/variants/popup/BringUp.h"

#include <utility>

namespace DisplayAPI {

namespace {

constexpr int TIMEOUT = 1; ///< the timer's id

} // namespace

PopupSide::Popup::Popup(PopupSide& side, Displayable* facade, Command* hidden)
    : mSide(side), mFacade(facade), mHidden(hidden)
{
    box->setMessageTarget(this);
    box->setKeyHeard([this] { restartTimeout(); });
}

/// A box that lives on does not tell somebody who is gone.
PopupSide::Popup::~Popup()
{
    if (box == nullptr)
        return;
    box->setMessageTarget(nullptr);
    box->setKeyHeard([] {});
}

int PopupSide::Popup::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_TIMER: leave(); break;
    case PM_APPLICATION_CHANGED: languageChanged(); break;
    case PM_CURRENT_CHANGED:
    case PM_CLICKED:
    case PM_LEFT:
    case PM_KEY: hear(message); break;
    default: return PegThing::Message(message);
    }
    return 0;
}

void PopupSide::Popup::comeUp()
{
    DisplayPrivateIfc* const display = mSide.display();
    if (isOnScreen() && display != nullptr && display->getCurrent() == mFacade)
        arrived();
    else
        bringUp(mFacade, display);
}

/// A display connects what comes to its stack before it shows it, and does not when it shows the same once more.
void PopupSide::Popup::connected(bool isUp)
{
    mIsUp = isUp;
    if (!isUp)
        KillTimer(TIMEOUT);
    if (isUp && box != nullptr && box->Parent() == nullptr)
        opened();
}

/// Also when what lay above has gone: an observer learns of it here.
void PopupSide::Popup::arrived()
{
    restartTimeout();
    mSide.generateDisplayChangedEvent();
}

bool PopupSide::Popup::raise(Command* command)
{
    const std::weak_ptr<void> life = mLife;
    mSide.postCommand(command, mFacade);
    return !life.expired();
}

/// What lies below shows itself at this, and whoever observes that may delete the popup.
void PopupSide::Popup::leave()
{
    leaving();
    KillTimer(TIMEOUT);
    // A display that has been emptied does not tell.
    const bool wasUp = std::exchange(mIsUp, false) && DisplayPrivateIfc::holds(mSide.display(), mFacade);
    const std::weak_ptr<void> life = mLife;
    mSide.widgetDismissed(&mSide);
    if (!life.expired() && wasUp && mHidden != nullptr)
        raise(mHidden);
}

void PopupSide::Popup::setTimeout(int milliseconds)
{
    mTimeout = milliseconds;
    restartTimeout();
}

void PopupSide::Popup::restartTimeout()
{
    if (mTimeout > 0 && isOnScreen())
        SetTimer(TIMEOUT, mTimeout, false);
    else
        KillTimer(TIMEOUT);
}

void PopupSide::Popup::changed()
{
    if (isOnScreen())
        mSide.generateDisplayChangedEvent();
}

void PopupSide::Popup::setStatusLines(int lines)
{
    if (box != nullptr)
        box->setStatusLines(lines);
}

} // namespace DisplayAPI
