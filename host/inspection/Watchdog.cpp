#include "host/inspection/Watchdog.h"

#include "host/inspection/StandstillReport.h"
#include "host/inspection/TraceClock.h"
#include "host/inspection/WaitGraph.h"
#include "utilities/Logging.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <pthread.h>

namespace host {

namespace {

constexpr std::chrono::milliseconds USUAL_LIMIT{2000};
constexpr int LOOKS_BEFORE_THE_LIMIT = 4;

std::unique_ptr<Watchdog> gWatchdog;

} // namespace

std::chrono::milliseconds Watchdog::limit()
{
    const char* const text = std::getenv("DISPLAYAPI_WATCHDOG");
    if (text == nullptr || *text == '\0')
        return USUAL_LIMIT;
    int milliseconds = 0;
    const char* const end = text + std::strlen(text);
    const auto [rest, error] = std::from_chars(text, end, milliseconds);
    if (error == std::errc() && rest == end && milliseconds >= 0)
        return std::chrono::milliseconds(milliseconds);
    std::fprintf(stderr, "DISPLAYAPI_WATCHDOG is '%s'; it may be a number of milliseconds, 0 for never\n", text);
    return USUAL_LIMIT;
}

Watchdog::Watchdog(std::chrono::milliseconds limit) : mLimit(limit), mThread([this] { run(); })
{
    pthread_setname_np(mThread.native_handle(), "watchdog");
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(mMutex);
        mEnding = true;
        mChanged.notify_all();
    }
    mThread.join();
}

void Watchdog::start()
{
    static const std::chrono::milliseconds usual = limit();
    if (usual.count() > 0)
        gWatchdog = std::make_unique<Watchdog>(usual);
}

void Watchdog::stop()
{
    gWatchdog.reset();
}

void Watchdog::run()
{
    const std::chrono::nanoseconds pause = std::chrono::nanoseconds(mLimit) / LOOKS_BEFORE_THE_LIMIT;
    std::unique_lock lock(mMutex);
    for (;;) {
        const std::int64_t before = monotonicNow();
        if (mChanged.wait_for(lock, pause, [this] { return mEnding; }))
            return;
        // The whole process has been stopped meanwhile, or the machine has no time for it.
        if (monotonicNow() - before > std::chrono::nanoseconds(mLimit).count())
            continue;
        lock.unlock();
        const WaitGraph graph;
        if (isNew(graph))
            tell(graph);
        lock.lock();
    }
}

bool Watchdog::isNew(const WaitGraph& graph)
{
    const std::int64_t tooLong = std::chrono::nanoseconds(mLimit).count();
    const bool guiStands = graph.gui().busyFor >= tooLong;
    // It may close long after the report of what the GUI thread is at, among those who are told of.
    const bool isClosed = guiStands && !graph.cycle().empty() && graph.cycle() != mToldCycle;
    bool isNew = isClosed || (guiStands && !mToldOfGui);
    const std::int64_t now = monotonicNow();
    std::set<std::pair<int, std::int64_t>> calls;
    for (const BlockedCall& call : graph.calls()) {
        calls.emplace(call.thread, call.since);
        isNew = isNew || (now - call.since >= tooLong && !mToldOfCalls.contains({call.thread, call.since}));
    }
    // All that is told of, those who have not waited for too long yet as well.
    mToldOfGui = guiStands && (mToldOfGui || isNew);
    if (isClosed)
        mToldCycle = graph.cycle();
    else if (!guiStands)
        mToldCycle.clear();
    if (isNew)
        mToldOfCalls = std::move(calls);
    else
        std::erase_if(mToldOfCalls, [&calls](const auto& call) { return !calls.contains(call); });
    return isNew;
}

void Watchdog::tell(const WaitGraph& graph)
{
    constexpr int SEVERE = 1;
    const std::string report = standstillReport(graph);
    if (loggingOnUni())
        logAppUni("Watchdog", "Watchdog", SEVERE, __LINE__, "%s", report.c_str());
    else
        std::fprintf(stderr, "%s\n", report.c_str());
}

} // namespace host
