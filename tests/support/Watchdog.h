#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace test {

/// Makes a test that hangs a failure with a sentence: says which one it is and what is known, and aborts.
class Watchdog : public testing::EmptyTestEventListener {
public:
    explicit Watchdog(std::chrono::milliseconds limit);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() override;

    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;

    /// A test has begun that has to end within the limit.
    void start(const std::string& name);
    void stop();

    /// A minute, four under a sanitizer. The environment's DISPLAYAPI_TEST_SECONDS says otherwise: for debuggers.
    static std::chrono::milliseconds usualLimit();

private:
    void guard();
    [[noreturn]] void reportHang() const;

    const std::chrono::milliseconds mLimit;
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::string mTest; ///< empty between tests
    int mTestNumber = 0;
    bool mEnding = false;
    std::thread mThread;
};

} // namespace test
