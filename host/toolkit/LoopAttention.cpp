#include "host/toolkit/LoopAttention.h"

#include "host/toolkit/LoopStatus.h"
#include "host/toolkit/MainQueue.h"

namespace host {

/// Who rests with a frame still to come wakes up.
LoopAttention::LoopAttention()
{
    QueueMutex mutex;
    const std::lock_guard lock(mutex);
    ++LoopStatus::instance().watchers;
    pthread_cond_broadcast(&gtPegMainQueue->condition);
}

LoopAttention::~LoopAttention()
{
    --LoopStatus::instance().watchers;
}

} // namespace host
