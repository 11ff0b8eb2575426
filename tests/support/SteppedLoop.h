#pragma once

#include "toolkit/PegMessage.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace DisplayAPI {
class DisplayEventFilter;
}

namespace test {

/// The GUI thread in the test's hands: the toolkit is started, a filter installed and the calling thread recorded as
/// the GUI thread, which handles a message when the test says so.
///
/// A message that is still queued at the end fails the test.
class SteppedLoop {
public:
    SteppedLoop();
    SteppedLoop(const SteppedLoop&) = delete;
    SteppedLoop& operator=(const SteppedLoop&) = delete;
    ~SteppedLoop();

    DisplayAPI::DisplayEventFilter* filter() const { return mFilter.get(); }
    void removeFilter();

    /// Handles the first message; returns false where there is none.
    bool step();

    /// Handles messages until none is left.
    void runAll();

    /// Stops between taking and running: takes over what waits, as the loop does, and begins none of it.
    void takeOver();

    int queued() const;

    /// Waits until so many messages are queued.
    void waitForQueued(int count);

    /// The queued messages in order, as they were at the time of the call.
    std::vector<PegMessage> messages() const;

    /// The codes of the queued widget requests in order.
    std::vector<int> queuedCodes() const;

    /// Takes out the first message without handling it. REQUIRES: there is one.
    PegMessage takeMessage();

private:
    std::unique_ptr<DisplayAPI::DisplayEventFilter> mFilter;
};

/// Base of the tests that have the GUI thread in their hands.
class SteppedTest : public testing::Test {
protected:
    SteppedLoop gui;
};

} // namespace test
