#include "host/inspection/ThreadStack.h"

#include "host/inspection/FunctionNames.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <execinfo.h>
#include <fstream>
#include <string_view>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace host {

namespace {

constexpr std::size_t DEEPEST = 64;

/// What the handler leaves: only who has asked last is answered.
struct Sample {
    enum State { IDLE, ASKED, WRITING, WRITTEN };

    std::atomic<State> state{IDLE};
    std::atomic<int> ticket{0};
    std::array<void*, DEEPEST> frames{};
    int count = 0;
};

constinit Sample gSample;

/// Whoever looks at other threads does so from one of its own: nothing is taken from the heap or locked here.
void takeSample(int, siginfo_t* information, void*)
{
    const int error = errno;
    auto expected = Sample::ASKED;
    if (information->si_code == SI_QUEUE && information->si_pid == getpid() &&
        information->si_value.sival_int == gSample.ticket.load() &&
        gSample.state.compare_exchange_strong(expected, Sample::WRITING)) {
        gSample.count = backtrace(gSample.frames.data(), static_cast<int>(DEEPEST));
        gSample.state = Sample::WRITTEN;
    }
    errno = error;
}

bool isOurs(int number)
{
    struct sigaction present = {};
    return sigaction(number, nullptr, &present) == 0 && (present.sa_flags & SA_SIGINFO) != 0 &&
           present.sa_sigaction == takeSample;
}

bool isUnused(int number)
{
    struct sigaction present = {};
    return sigaction(number, nullptr, &present) == 0 && (present.sa_flags & SA_SIGINFO) == 0 &&
           present.sa_handler == SIG_DFL;
}

bool takeOver(int number)
{
    struct sigaction action = {};
    action.sa_sigaction = takeSample;
    action.sa_flags = SA_SIGINFO | SA_RESTART | SA_ONSTACK;
    sigfillset(&action.sa_mask);
    return sigaction(number, &action, nullptr) == 0;
}

/// A signal that comes too late must find its handler, so it stays where it is; one that the program has taken for
/// itself meanwhile is left to it. 0 where none is free.
int signalNumber()
{
    static int number = 0;
    if (number != 0 && isOurs(number))
        return number;
    // What unwinds stacks is loaded by its first use, which a handler could not do.
    std::array<void*, 4> frames;
    backtrace(frames.data(), static_cast<int>(frames.size()));
    for (number = SIGRTMAX - 1; number > SIGRTMIN; --number)
        if (isUnused(number) && takeOver(number))
            return number;
    return number = 0;
}

/// Whether the signal is in one of the thread's sets. What has ended says of each one what `ifGone` says.
bool has(int thread, std::string_view set, int number, bool ifGone)
{
    std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(set))
            return (std::stoull(line.substr(set.size()), nullptr, 16) >> (number - 1) & 1) != 0;
    return ifGone;
}

/// What blocks a signal waits for it, or would get it at some other time.
bool blocks(int thread, int number)
{
    return has(thread, "SigBlk:\t", number, true);
}

/// On a busy machine it may be long before the thread gets to run.
bool isUnderWay(int thread, int number)
{
    return has(thread, "SigPnd:\t", number, false);
}

bool send(int thread, int number, int ticket)
{
    siginfo_t information = {};
    information.si_signo = number;
    information.si_code = SI_QUEUE;
    information.si_pid = getpid();
    information.si_uid = getuid();
    information.si_value.sival_int = ticket;
    return syscall(SYS_rt_tgsigqueueinfo, getpid(), thread, number, &information) == 0;
}

/// Waits until the sample is there, not for long where its thread has had the signal and does not begin with it.
bool waitForSample(int thread, int number)
{
    using namespace std::chrono_literals;
    constexpr int TRIES = 2000;
    constexpr int TRIES_ONCE_HAD = 250;
    for (int left = TRIES; left > 0 && gSample.state != Sample::WRITTEN; --left) {
        std::this_thread::sleep_for(1ms);
        if (left > TRIES_ONCE_HAD && !isUnderWay(thread, number))
            left = TRIES_ONCE_HAD;
    }
    auto expected = Sample::ASKED;
    if (gSample.state.compare_exchange_strong(expected, Sample::IDLE))
        return false;
    while (gSample.state != Sample::WRITTEN)
        std::this_thread::sleep_for(1ms);
    return true;
}

} // namespace

std::vector<std::string> stackOf(int thread)
{
    const int number = signalNumber();
    if (number == 0)
        return {"the program uses all signals"};
    if (blocks(thread, number))
        return {"it has ended, or takes no signal"};
    gSample.ticket.fetch_add(1);
    gSample.state = Sample::ASKED;
    if (!send(thread, number, gSample.ticket)) {
        gSample.state = Sample::IDLE;
        return {"it has ended"};
    }
    if (!waitForSample(thread, number))
        return {"it does not answer a signal"};
    std::vector<std::string> functions;
    FunctionNames names;
    constexpr int HANDLERS = 2; // this file's, and what the kernel calls it by
    for (int i = HANDLERS; i < gSample.count; ++i)
        functions.push_back(names.of(gSample.frames[static_cast<std::size_t>(i)]));
    gSample.state = Sample::IDLE;
    return functions;
}

} // namespace host
