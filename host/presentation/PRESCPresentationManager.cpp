#include "presentation/PRESCPresentationManager.h"

#include "host/input/Keyboard.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/MainLoop.h"
#include "host/toolkit/Timers.h"
#include "utilities/Logging.h"

#include <utility>

PRESCPresentationManager* gpPresent = nullptr;

namespace {

bool isBelow(const PegThing* thing, const PegThing* root)
{
    while (thing != nullptr && thing != root)
        thing = thing->Parent();
    return thing != nullptr;
}

void dispatch(const PegMessage& message, PegThing* focus)
{
    const bool isKey = message.wType == PM_KEY || message.wType == PM_KEYRELEASE;
    if (isKey)
        host::Keyboard::instance().comes(message);
    if (PegThing* const target = message.pTarget != nullptr ? message.pTarget : focus)
        target->Message(message);
    if (isKey)
        host::Keyboard::instance().handled(message);
}

} // namespace

PRESCPresentationManager::PRESCPresentationManager()
{
    Type(TYPE_PRESENTATION_MANAGER);
    setStatus(PSF_VISIBLE, true);
    if (const host::Lcd* const lcd = host::Lcd::current())
        Resize(host::rectAt(0, 0, lcd->width(), lcd->height()));
}

PRESCPresentationManager::~PRESCPresentationManager()
{
    while (mLast != nullptr)
        delete mLast;
    if (gpPresent == this)
        gpPresent = nullptr;
}

void PRESCPresentationManager::Execute(const char* sourceFile)
{
    if (loggingOnUni())
        logAppUni("PegWidgets", "PRESCPresentationManager", 5, __LINE__, "Execute() called from %s",
                  sourceFile != nullptr ? sourceFile : "");
    host::MainLoop loop;
    while (!loop.hasEnded()) {
        PegMessage* const message = loop.take();
        if (message != nullptr) {
            dispatch(*message, mFocus);
            loop.done(message);
        }
        if (loop.isTurnOfOthers()) {
            host::Timers::instance().fireDue();
            loop.paintIfDue();
        }
        if (mPending != nullptr && loop.isPainted())
            mPending = nullptr;
        if (message == nullptr)
            loop.waitForWork();
    }
}

int PRESCPresentationManager::Message(const PegMessage& message)
{
    if (message.wType != PM_EXIT)
        return PegThing::Message(message);
    host::MainLoop::end();
    return 0;
}

void PRESCPresentationManager::MoveFocusTree(PegThing* thing)
{
    if (!isBelow(thing, this) || (thing->Style() & FF_BEHIND))
        return;
    markBranch(mFocus, false);
    markBranch(thing, true);
    mFocus = thing;
}

void PRESCPresentationManager::markBranch(PegThing* thing, bool current)
{
    for (; thing != nullptr; thing = thing->mParent)
        thing->setStatus(PSF_CURRENT, current);
}

/// What is added slips under the messages that are up.
void PRESCPresentationManager::slipUnderMessages(PegThing* child)
{
    if (child->Type() == TYPE_STATUS_MESSAGE)
        return;
    while (child->mPrevious != nullptr && child->mPrevious->Type() == TYPE_STATUS_MESSAGE)
        lower(child);
}

/// Puts `child` under the one that lies directly below it.
void PRESCPresentationManager::lower(PegThing* child)
{
    PegThing* const other = child->mPrevious;
    PegThing* const below = other->mPrevious;
    PegThing* const above = child->mNext;
    (below != nullptr ? below->mNext : mFirst) = child;
    (above != nullptr ? above->mPrevious : mLast) = other;
    child->mPrevious = below;
    child->mNext = other;
    other->mPrevious = child;
    other->mNext = above;
}

void PRESCPresentationManager::childAdded(PegThing* child, bool redraw)
{
    slipUnderMessages(child);
    if (!redraw)
        return;
    mPending = child;
    child->Invalidate();
}

void PRESCPresentationManager::childRemoved(PegThing* child, bool redraw)
{
    if (isBelow(mFocus, child))
        markBranch(std::exchange(mFocus, nullptr), false);
    if (isBelow(mPending, child))
        mPending = nullptr;
    if (!redraw)
        return;
    child->Invalidate();
    mPending = child->mPrevious != nullptr ? child->mPrevious : child->mParent;
}

void PRESCPresentationManager::forget(PegThing* thing)
{
    if (mFocus == thing)
        mFocus = nullptr;
    if (mPending == thing)
        mPending = nullptr;
}
