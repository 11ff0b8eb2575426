#include "DisplayPrivate.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayEventFilter.h"
#include "DisplayPrivateLog.h"
#include "RequestHook.h"
#include "RequestQueue.h"
#include "WidgetSync.h"
#include "utilities/Semaphore.h"

namespace DisplayAPI {

void postEventHelper(DisplayRequestEvent* request, DisplayEventFilter* filter, bool wait)
{
    if (loggingOnUni()) {
        if (request == nullptr) {
            gDisplayLog(TRACE, 1236, "postEventHelper(DisplayRequestEvent *, bool)____________postEvent: NULL\n");
        } else {
            gDisplayLog(TRACE, 1240,
                        "postHelperEvent(DisplayRequestEvent *, bool)___________display postEvent: %d, wait = %d\n",
                        static_cast<int>(request->getType()), static_cast<int>(wait));
            gDisplayLog(TRACE, 1244, "postEventHelper(DisplayRequestEvent *, bool)__________________ %s \n",
                        request->getStringParam().c_str());
        }
    }
    PegMessage* const message = takeMessage();
    if (message == nullptr) {
        gDisplayLog(LOST, 1270, "postEvent() no more PegMessage objects in the pool, this one will be lost!");
        tellLost();
        delete request;
        return;
    }
    message->wType = PM_DISPLAY_REQUEST;
    message->iData = request != nullptr ? tellQueued(typeid(Display), request->getType(), wait) : 0;
    message->pTarget = filter;
    message->pSource = filter;
    message->pData = request;

    // Once the mutex is released the GUI thread may have deleted the request: read what to wait for before.
    Semaphore* semaphore = nullptr;
    int code = 0;
    enqueue(message, Place::TAIL, wait ? Answer::AWAITED : Answer::NOT_AWAITED, [&] {
        semaphore = request != nullptr ? request->getSemaphore() : nullptr;
        code = request != nullptr ? request->getType() : 0;
        return true;
    });
    if (!wait || semaphore == nullptr)
        return;
    const RequestWait waiting(typeid(Display), code);
    semaphore->take(-1);
}

/// Nobody will carry out what is still queued for this display's filter: let those who wait go on.
void DisplayPrivate::completeQueuedRequests()
{
    if (mFilter == nullptr)
        return;
    mFilter->uninstall();
    removeMessages([this](const PegMessage& message) { return message.pTarget == mFilter.get(); },
                   [](PegMessage* message) {
                       if (message->wType == PM_DISPLAY_REQUEST && message->pData != nullptr) {
                           auto* request = static_cast<DisplayRequestEvent*>(message->pData);
                           tellPurged(message->iData);
                           request->requestCompleted();
                           delete request;
                       } else if (message->wType == PM_WIDGET_REQUEST) {
                           completeUnserved(takeRequest(*message));
                       }
                       giveBackMessage(message);
                   });
}

void DisplayPrivate::postEvent(DisplayRequestEvent* request)
{
    postEventHelper(request, mFilter.get(), true);
}

void DisplayPrivate::postEventAsync(DisplayRequestEvent* request)
{
    postEventHelper(request, mFilter.get(), false);
}

void DisplayPrivate::purgeOwnMessage(Display* display, int code, int otherCode, Displayable* displayable)
{
    const auto matches = [=](const PegMessage& message) {
        auto* request = static_cast<DisplayRequestEvent*>(message.pData);
        if (message.wType != PM_DISPLAY_REQUEST || request == nullptr || request->requesterDisplay() != display)
            return false;
        return (request->getType() == code || request->getType() == otherCode) &&
               (displayable == nullptr || request->getDisplayable() == displayable);
    };
    removeMessages(matches, [](PegMessage* message) {
        auto* request = static_cast<DisplayRequestEvent*>(message->pData);
        message->pData = nullptr;
        tellPurged(message->iData);
        request->requestCompleted();
        delete request;
        giveBackMessage(message);
    });
}

} // namespace DisplayAPI
