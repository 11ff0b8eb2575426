#include "support/Watchdog.h"

#include "support/HangReport.h"

#include <cstdio>
#include <cstdlib>

namespace test {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int SANITIZER_FACTOR = 4;
#else
constexpr int SANITIZER_FACTOR = 1;
#endif

} // namespace

Watchdog::Watchdog(std::chrono::milliseconds limit) : mLimit(limit), mThread(&Watchdog::guard, this) {}

Watchdog::~Watchdog()
{
    {
        std::lock_guard lock(mMutex);
        mEnding = true;
    }
    mChanged.notify_all();
    mThread.join();
}

std::chrono::milliseconds Watchdog::usualLimit()
{
    const char* const wanted = std::getenv("DISPLAYAPI_TEST_SECONDS");
    const int seconds = wanted != nullptr ? std::atoi(wanted) : 60 * SANITIZER_FACTOR;
    return std::chrono::seconds(seconds);
}

void Watchdog::OnTestStart(const testing::TestInfo& test)
{
    start(std::string(test.test_suite_name()) + "." + test.name());
}

void Watchdog::OnTestEnd(const testing::TestInfo&)
{
    stop();
}

void Watchdog::start(const std::string& name)
{
    std::lock_guard lock(mMutex);
    mTest = name;
    ++mTestNumber;
    mChanged.notify_all();
}

void Watchdog::stop()
{
    std::lock_guard lock(mMutex);
    mTest.clear();
    mChanged.notify_all();
}

void Watchdog::guard()
{
    std::unique_lock lock(mMutex);
    while (!mEnding) {
        mChanged.wait(lock, [this] { return mEnding || !mTest.empty(); });
        const int guarded = mTestNumber;
        const auto isOver = [&] { return mEnding || mTest.empty() || mTestNumber != guarded; };
        if (!mChanged.wait_for(lock, mLimit, isOver))
            reportHang();
    }
}

void Watchdog::reportHang() const
{
    const double seconds = std::chrono::duration<double>(mLimit).count();
    std::fprintf(stderr, "\nTEST HUNG: %s did not finish in %g s\n%s", mTest.c_str(), seconds, hangReport().c_str());
    std::fflush(stderr);
    std::abort();
}

} // namespace test
