#include "simulator/launcher/ApplicationRun.h"

#include <poll.h>

namespace simulator {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// How often an overdue application is looked for.
constexpr milliseconds LONGEST_NAP(200);

} // namespace

ApplicationRun::ApplicationRun(const std::vector<std::string>& command, const Child::Environment& added, int kept)
    : mChild(command, added, kept)
{
}

std::optional<Ending> ApplicationRun::wait(milliseconds limit, int descriptor)
{
    pollfd events[] = {{mSignals.descriptor(), POLLIN, 0}, {descriptor, POLLIN, 0}};
    poll(events, 2, static_cast<int>(std::min(limit, LONGEST_NAP).count()));
    handleSignals();
    killWhenOverdue();
    const auto ending = mChild.ending();
    if (!ending || mChild.groupIsGone())
        return ending;
    if (!mWasAsked)
        askToEnd(SIGTERM);
    return {};
}

void ApplicationRun::limitTo(milliseconds limit)
{
    if (!mDeadline)
        mDeadline = steady_clock::now() + limit;
}

void ApplicationRun::handleSignals()
{
    while (const auto signal = mSignals.take()) {
        if (signal->ssi_signo == SIGTSTP)
            stop();
        else if (signal->ssi_signo != SIGCHLD)
            askToEnd(static_cast<int>(signal->ssi_signo));
    }
}

void ApplicationRun::stop()
{
    mChild.send(SIGTSTP);
    raise(SIGSTOP);
    mChild.send(SIGCONT);
}

void ApplicationRun::askToEnd(int signal)
{
    mWasAsked = true;
    limitTo(TIME_TO_END);
    mChild.send(signal);
}

void ApplicationRun::killWhenOverdue()
{
    if (!mDeadline || steady_clock::now() < *mDeadline)
        return;
    mWasKilled = mWasKilled || !mChild.ending();
    mChild.send(SIGKILL);
}

} // namespace simulator
