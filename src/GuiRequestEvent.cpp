#include "DisplayAPI/GuiRequestEvent.h"

#include "RecordPool.h"
#include "utilities/Wait.h"

namespace DisplayAPI {

// ptrParam3 stays unset: whoever reads it has set it.
GuiRequestEvent::GuiRequestEvent(Widget* requester, int type) : mRequester(requester), mType(type) {}

GuiRequestEvent::~GuiRequestEvent() = default;

void GuiRequestEvent::waitForCompletion()
{
    if (mWaitCondition != nullptr)
        mWaitCondition->wait();
}

void GuiRequestEvent::signalComplete()
{
    if (mWaitCondition != nullptr)
        mWaitCondition->wakeUp();
}

void* GuiRequestEvent::operator new(std::size_t size)
{
    return size == sizeof(GuiRequestEvent) ? RecordPool<GuiRequestEvent>::allocate() : ::operator new(size);
}

void GuiRequestEvent::operator delete(void* record, std::size_t size) noexcept
{
    if (size == sizeof(GuiRequestEvent))
        RecordPool<GuiRequestEvent>::release(record);
    else
        ::operator delete(record);
}

} // namespace DisplayAPI
