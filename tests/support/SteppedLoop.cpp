#include "support/SteppedLoop.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "DisplayEventFilter.h"
#include "RequestQueue.h"
#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"
#include "toolkit/PegFunctions.h"
#include "toolkit/PegThing.h"

#include <mutex>

namespace test {

using DisplayAPI::DisplayEventFilter;
using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;

namespace {

/// The first message, or null. Does not take over what waits: that is the test's to do.
PegMessage* takeHead()
{
    return DisplayAPI::removeFirstMessage([](const PegMessage&) { return true; });
}

} // namespace

SteppedLoop::SteppedLoop()
{
    pegInit();
    mFilter = std::make_unique<DisplayEventFilter>(true);
    Widget::setGuiThreadId();
}

SteppedLoop::~SteppedLoop()
{
    EXPECT_EQ(queued(), 0) << "messages left behind";
    mFilter.reset();
    Widget::setGuiThreadId(0);
    pegCleanUp();
}

void SteppedLoop::removeFilter()
{
    mFilter.reset();
}

bool SteppedLoop::step()
{
    PegMessage* const message = takeHead();
    if (message == nullptr)
        return false;
    if (message->pTarget != nullptr)
        message->pTarget->Message(*message);
    host::MessagePool::giveBack(message, message);
    return true;
}

void SteppedLoop::runAll()
{
    while (step()) {
    }
}

void SteppedLoop::takeOver()
{
    host::MainQueue::takeOver();
}

int SteppedLoop::queued() const
{
    host::QueueMutex mutex;
    const std::lock_guard lock(mutex);
    return gtPegMainQueue->count();
}

void SteppedLoop::waitForQueued(int count)
{
    host::QueueMutex mutex;
    std::lock_guard lock(mutex);
    while (gtPegMainQueue->count() != count)
        pthread_cond_wait(&gtPegMainQueue->condition, &gtPegMainQueue->mutex);
}

std::vector<PegMessage> SteppedLoop::messages() const
{
    host::QueueMutex mutex;
    std::lock_guard lock(mutex);
    std::vector<PegMessage> all;
    for (const PegMessage* message : {gtPegMainQueue->taken, gtPegMainQueue->head})
        for (; message != nullptr; message = message->Next)
            all.push_back(*message);
    return all;
}

std::vector<int> SteppedLoop::queuedCodes() const
{
    std::vector<int> codes;
    for (const PegMessage& message : messages())
        if (message.wType == PM_WIDGET_REQUEST)
            codes.push_back(static_cast<const GuiRequestEvent*>(message.pData)->getType());
    return codes;
}

PegMessage SteppedLoop::takeMessage()
{
    PegMessage* const message = takeHead();
    const PegMessage copy = *message;
    host::MessagePool::giveBack(message, message);
    return copy;
}

} // namespace test
