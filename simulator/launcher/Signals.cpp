#include "simulator/launcher/Signals.h"

#include <unistd.h>

namespace simulator {

namespace {

/// As under nohup, or in the background of a script.
bool isIgnored(int signal)
{
    struct sigaction present {};
    sigaction(signal, nullptr, &present);
    return present.sa_handler == SIG_IGN;
}

sigset_t ourSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGCHLD);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGTSTP})
        if (!isIgnored(signal))
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

} // namespace simulator
