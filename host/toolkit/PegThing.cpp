#include "toolkit/PegThing.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/MainQueue.h"
#include "host/toolkit/Timers.h"
#include "presentation/PRESCPresentationManager.h"

PegScreen* PegThing::mpScreen = nullptr;
PegMessageQueue* PegThing::mpMessageQueue = nullptr;

namespace {

bool isKey(const PegMessage& message)
{
    return message.wType == PM_KEY || message.wType == PM_KEYRELEASE;
}

bool isOrHasAbove(const PegThing* thing, const PegThing* wanted)
{
    while (thing != nullptr && thing != wanted)
        thing = thing->Parent();
    return thing != nullptr;
}

} // namespace

PegThing::PegThing(std::uint16_t id, std::uint16_t style) : mId(id), mStyle(style) {}

PegThing::~PegThing()
{
    if (mParent != nullptr)
        mParent->Remove(this);
    while (mLast != nullptr)
        delete mLast;
    if (mHasTimers)
        host::Timers::instance().killAll(this);
    if (gpPresent != nullptr)
        gpPresent->forget(this);
    host::MainQueue::dropMessagesTo(this);
}

int PegThing::Message(const PegMessage& message)
{
    if (isKey(message) && mParent != nullptr)
        mParent->Message(message);
    return 0;
}

void PegThing::Draw(PegPainter&) {}

void PegThing::Resize(const PegRect& area)
{
    Invalidate();
    mArea = area;
    Invalidate();
}

void PegThing::Add(PegThing* child, bool redraw)
{
    if (child == nullptr || isOrHasAbove(this, child))
        return;
    if (child->mParent != nullptr)
        child->mParent->Remove(child, redraw);
    child->mParent = this;
    child->mPrevious = mLast;
    (mLast != nullptr ? mLast->mNext : mFirst) = child;
    mLast = child;
    if (!StatusIs(PSF_VISIBLE))
        return;
    child->setTreeVisible(true);
    gpPresent->childAdded(child, redraw);
}

void PegThing::Remove(PegThing* child, bool redraw)
{
    if (child == nullptr || child->mParent != this)
        return;
    if (StatusIs(PSF_VISIBLE))
        gpPresent->childRemoved(child, redraw);
    (child->mPrevious != nullptr ? child->mPrevious->mNext : mFirst) = child->mNext;
    (child->mNext != nullptr ? child->mNext->mPrevious : mLast) = child->mPrevious;
    child->mParent = child->mNext = child->mPrevious = nullptr;
    if (child->StatusIs(PSF_VISIBLE))
        child->setTreeVisible(false);
    ChildRemoved(child);
}

void PegThing::Invalidate()
{
    if (mpScreen != nullptr && StatusIs(PSF_VISIBLE))
        mpScreen->Invalidate(this);
}

void PegThing::Invalidate(const PegRect& part)
{
    if (host::Lcd::current() != nullptr && StatusIs(PSF_VISIBLE))
        host::Lcd::current()->invalidate(host::intersection(part, mArea));
}

void PegThing::SetTimer(std::int32_t id, int ms, bool repeat)
{
    mHasTimers = true;
    host::Timers::instance().set(this, id, ms, repeat);
}

void PegThing::KillTimer(std::int32_t id)
{
    if (mHasTimers)
        host::Timers::instance().kill(this, id);
}

void PegThing::VisibilityChanged() {}

void PegThing::ChildRemoved(PegThing*) {}

void PegThing::setStatus(std::uint16_t bits, bool on)
{
    mStatus = static_cast<std::uint16_t>(on ? mStatus | bits : mStatus & ~bits);
}

void PegThing::setTreeVisible(bool visible)
{
    setStatus(PSF_VISIBLE, visible);
    VisibilityChanged();
    for (PegThing* child = mFirst; child != nullptr;) {
        PegThing* const next = child->mNext;
        child->setTreeVisible(visible);
        child = next;
    }
}
