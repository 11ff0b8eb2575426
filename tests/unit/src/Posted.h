#pragma once

#include "support/SteppedLoop.h"
#include "support/Worker.h"

#include <functional>
#include <ostream>
#include <vector>

namespace test {

/// What an operation has posted when it returned or came to wait, and which of the two it was.
struct Posted {
    std::vector<int> codes;
    bool waits;

    friend bool operator==(const Posted&, const Posted&) = default;
};

inline void PrintTo(const Posted& posted, std::ostream* out)
{
    *out << testing::PrintToString(posted.codes) << (posted.waits ? ", waits" : ", returns at once");
}

/// Calls `operation` on another thread, and carries out what it posts.
inline Posted postedBy(SteppedLoop& gui, std::function<void()> operation)
{
    Worker worker(std::move(operation));
    const bool waits = worker.isBlocked();
    Posted posted{gui.queuedCodes(), waits};
    while (!worker.hasReturned())
        gui.step();
    worker.join();
    gui.runAll();
    return posted;
}

} // namespace test
