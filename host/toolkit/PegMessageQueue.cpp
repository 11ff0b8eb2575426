#include "toolkit/PegMessageQueue.h"

#include "host/toolkit/MainQueue.h"

void PegMessageQueue::Push(const PegMessage& message)
{
    host::MainQueue::push(message);
}
