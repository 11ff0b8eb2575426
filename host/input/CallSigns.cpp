#include "host/input/CallSigns.h"

#include <mutex>
#include <utility>

namespace host {

namespace {

// Never destroyed: a call may end as late as at process exit.

struct ShownSigns {
    std::mutex mutex;
    CallSigns signs;
    std::function<void()> listener;
};

ShownSigns& shownSigns()
{
    static auto* const shown = new ShownSigns;
    return *shown;
}

} // namespace

void CallSigns::show(CallSigns signs)
{
    std::function<void()> listener;
    {
        const std::lock_guard lock(shownSigns().mutex);
        if (std::exchange(shownSigns().signs, signs) == signs)
            return;
        listener = shownSigns().listener;
    }
    if (listener)
        listener();
}

CallSigns CallSigns::current()
{
    const std::lock_guard lock(shownSigns().mutex);
    return shownSigns().signs;
}

void CallSigns::setListener(std::function<void()> listener)
{
    const std::lock_guard lock(shownSigns().mutex);
    shownSigns().listener = std::move(listener);
}

} // namespace host
