#include "widgets/KestrelPegTimer.h"

#include "toolkit/PegThing.h"

namespace {

constexpr int ID = 1;

} // namespace

/// Repeats in the toolkit as well, so that a loop that is late now and then does not make it slower.
struct KestrelPegTimer::Impl final : PegThing {
    int Message(const PegMessage& message) override;
    void run();

    KestrelTimerObserver* observer = nullptr;
    int interval = 0;
    int runsWith = 0; ///< the interval that the toolkit has been told
    bool singleShot = false;
};

void KestrelPegTimer::Impl::run()
{
    runsWith = interval;
    SetTimer(ID, interval, true);
}

/// The observer may delete the timer: nothing comes after it.
int KestrelPegTimer::Impl::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return PegThing::Message(message);
    if (singleShot)
        KillTimer(ID);
    else if (interval != runsWith)
        run();
    return observer != nullptr ? observer->Message(message) : 0;
}

KestrelPegTimer::KestrelPegTimer() : mImpl(std::make_unique<Impl>()) {}

KestrelPegTimer::~KestrelPegTimer() = default;

void KestrelPegTimer::setObserver(KestrelTimerObserver* observer)
{
    mImpl->observer = observer;
}

void KestrelPegTimer::setInterval(int ms)
{
    if (ms >= 1)
        mImpl->interval = ms;
}

void KestrelPegTimer::setSingleShot(bool on)
{
    mImpl->singleShot = on;
}

void KestrelPegTimer::start(int ms)
{
    if (ms < 1)
        return;
    mImpl->interval = ms;
    mImpl->run();
}

void KestrelPegTimer::stop()
{
    mImpl->KillTimer(ID);
}
