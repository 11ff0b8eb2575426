#include "simulator/launcher/Signals.h"

#include <unistd.h>

namespace simulator {

namespace {

sigset_t ourSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP})
        sigaddset(&signals, signal);
    return signals;
}

} // namespace

Signals::Signals()
{
    const sigset_t signals = ourSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    mDescriptor = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

Signals::~Signals()
{
    close(mDescriptor);
}

std::optional<signalfd_siginfo> Signals::take()
{
    signalfd_siginfo signal;
    if (read(mDescriptor, &signal, sizeof signal) != sizeof signal)
        return {};
    return signal;
}

bool isFromTerminal(const signalfd_siginfo& signal)
{
    return signal.ssi_code == SI_KERNEL;
}

} // namespace simulator
