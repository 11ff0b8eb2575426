#include "DisplayAPI/DisplayRequestEvent.h"

#include "utilities/Semaphore.h"

#include <utility>

namespace DisplayAPI {

// The fields that a constructor leaves out are never read for the requests that are built with it.

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, int value,
                                         std::string text)
    : mRequester(requester), mDisplayable(nullptr), mString(std::move(text)), mBool(false), mType(type),
      mSemaphore(semaphore), mCurrentDisplayable(nullptr), mStringReturn(nullptr), mInt(value)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, int value)
    : DisplayRequestEvent(requester, type, semaphore, value, std::string())
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore,
                                         const Rects* rects, bool flag)
    : mRequester(requester), mDisplayable(nullptr), mBool(flag), mType(type), mSemaphore(semaphore),
      mCurrentDisplayable(nullptr), mDisplayedRects(nullptr), mStringReturn(nullptr), mSerialisableRects(rects), mInt(0)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, bool flag)
    : DisplayRequestEvent(requester, type, semaphore, static_cast<const Rects*>(nullptr), flag)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore,
                                         std::string text)
    : mRequester(requester), mDisplayable(nullptr), mString(std::move(text)), mBool(false), mType(type),
      mSemaphore(semaphore), mCurrentDisplayable(nullptr), mDisplayedRects(nullptr), mStringReturn(nullptr),
      mSerialisableRects(nullptr)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore,
                                         Displayable* displayable)
    : DisplayRequestEvent(requester, type, semaphore, false)
{
    mDisplayable = displayable;
}

DisplayRequestEvent::~DisplayRequestEvent() = default;

void DisplayRequestEvent::setDisplayedRects(Rects* rects)
{
    if (mDisplayedRects != nullptr)
        *mDisplayedRects = rects;
}

void DisplayRequestEvent::waitForCompletion()
{
    if (mSemaphore != nullptr)
        mSemaphore->take(-1);
}

void DisplayRequestEvent::requestCompleted()
{
    if (mSemaphore != nullptr)
        mSemaphore->give();
}

} // namespace DisplayAPI
