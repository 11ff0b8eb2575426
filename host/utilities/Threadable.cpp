#include "utilities/Threadable.h"

#include "host/utilities/ThreadableState.h"

#include <sys/syscall.h>
#include <unistd.h>

Threadable::Threadable() : mState(std::make_shared<State>()) {}

Threadable::~Threadable() = default;

int Threadable::getThreadPriorityForPlatform()
{
    return 0;
}

int Threadable::type()
{
    return 0;
}

unsigned int Threadable::currentThreadId()
{
    // Asked for at every call on a facade: no guard, no call to find the variable.
    [[gnu::tls_model("initial-exec")]] thread_local constinit unsigned int id = 0;
    if (id == 0)
        id = static_cast<unsigned int>(syscall(SYS_gettid));
    return id;
}

void Threadable::waitForThreadCompletion()
{
    const std::shared_ptr<State> outlivesThis = state();
    waitForThreadCompletion(*outlivesThis);
}

void Threadable::waitForThreadCompletion(State& state)
{
    state.waitForEnd();
}

bool Threadable::isCurrentThread() const
{
    return mState->threadId == currentThreadId();
}
