#include "host/inspection/WaitGraph.h"

#include "host/inspection/ThreadNames.h"
#include "host/toolkit/Loop.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace host {

namespace {

std::string fileOf(int thread, const char* name)
{
    return "/proc/self/task/" + std::to_string(thread) + "/" + name;
}

bool isThread(int number)
{
    return number > 0 && access(fileOf(number, "comm").c_str(), F_OK) == 0;
}

/// Behind the name, which may have brackets of its own, stands the state.
bool sleeps(int thread)
{
    std::string line;
    std::getline(std::ifstream(fileOf(thread, "stat")), line);
    const std::size_t end = line.rfind(')');
    return end != std::string::npos && line.substr(end).starts_with(") S");
}

/// The word that a thread sleeps at, and how; no word where it does not, or where the kernel does not tell.
struct FutexSleep {
    std::uintptr_t word = 0;
    std::uintptr_t operation = 0;

    explicit FutexSleep(int thread)
    {
        std::ifstream file(fileOf(thread, "syscall"));
        long number = -1;
        if (!(file >> number) || number != SYS_futex || !(file >> std::hex >> word >> operation))
            word = 0;
    }

    bool isInMutex() const { return word != 0 && operation == FUTEX_WAIT_PRIVATE; }

    /// The kernel itself clears that word, so it is no private one.
    bool isInJoin() const
    {
        return word != 0 && (operation & FUTEX_PRIVATE_FLAG) == 0 && (operation & FUTEX_CMD_MASK) == FUTEX_WAIT_BITSET;
    }
};

/// A copy of what lies there, zeros where nothing does any more.
std::array<int, 3> wordsAt(std::uintptr_t address)
{
    std::array<int, 3> words{};
    const iovec here{words.data(), sizeof words};
    const iovec there{reinterpret_cast<void*>(address), sizeof words};
    const auto copied = process_vm_readv(getpid(), &here, 1, &there, 1, 0);
    return copied == static_cast<ssize_t>(sizeof words) ? words : std::array<int, 3>{};
}

/// Who holds the mutex that the thread waits for, or whom it joins; 0 where that is something else. The C library's
/// mutex has its state, 2 while somebody waits, a count and its holder; a thread that is joined has its number there.
int holderFor(int thread)
{
    constexpr int WAITED_FOR = 2;
    const FutexSleep sleep(thread);
    const auto [state, count, holder] = wordsAt(sleep.word);
    if (sleep.isInMutex() && state == WAITED_FOR && isThread(holder))
        return holder;
    return sleep.isInJoin() && isThread(state) ? state : 0;
}

} // namespace

GuiStatus GuiStatus::now()
{
    GuiStatus status;
    status.thread = static_cast<int>(Loop::guiThread());
    status.busyFor = std::chrono::nanoseconds(Loop::busyFor()).count();
    if (status.thread != 0 && !Loop::isRunning())
        status.state = NO_LOOP;
    else if (Loop::isBusy())
        status.state = WORKS;
    std::uint64_t turns = 0;
    do {
        turns = gRunningRequest.turns.load(std::memory_order_acquire);
        status.facade = gRunningRequest.facade.load(std::memory_order_acquire);
        status.code = gRunningRequest.code.load(std::memory_order_acquire);
    } while (turns % 2 != 0 || turns != gRunningRequest.turns.load(std::memory_order_relaxed));
    return status;
}

WaitGraph::WaitGraph() : mGui(GuiStatus::now()), mCalls(BlockedCalls::longest())
{
    if (mGui.thread != 0 && mGui.state != GuiStatus::RESTS)
        findCycle();
}

std::optional<WaitCycle> WaitGraph::cycleOf(const BlockedCall& call) const
{
    if (std::ranges::find(mCycle, call.thread) != mCycle.end())
        return WaitCycle{mCycle, true};
    if (mWaitsForSomebody)
        return WaitCycle{{mGui.thread, call.thread, mGui.thread}, false};
    return {};
}

void WaitGraph::findCycle()
{
    std::vector<int> threads{mGui.thread};
    for (int next = waitsFor(mGui.thread); next != 0; next = waitsFor(next)) {
        const bool isKnown = std::ranges::find(threads, next) != threads.end();
        threads.push_back(next);
        if (next == mGui.thread)
            mCycle = threads;
        if (isKnown)
            return;
    }
    mWaitsForSomebody = threads.size() == 1 && sleeps(mGui.thread);
}

/// 0 for nobody, or nobody knows.
int WaitGraph::waitsFor(int thread) const
{
    return thread != mGui.thread && isBlockedCall(thread) ? mGui.thread : holderFor(thread);
}

bool WaitGraph::isBlockedCall(int thread) const
{
    return std::ranges::find(mCalls, thread, &BlockedCall::thread) != mCalls.end();
}

} // namespace host
