#pragma once

#include "DisplayAPI/CommandListener.h"
#include "support/Worker.h"

#include <latch>

namespace test {

/// Keeps the delivery of notifications waiting for as long as it lives: what is raised meanwhile stays queued.
class PoolGate {
public:
    PoolGate()
    {
        mListener.postCommandAction(nullptr, nullptr);
        mListener.reached.wait();
    }

    PoolGate(const PoolGate&) = delete;
    PoolGate& operator=(const PoolGate&) = delete;

    ~PoolGate()
    {
        mListener.open.count_down();
        waitUntil([this] { return mListener.passed.load(); });
    }

private:
    struct Blocker : DisplayAPI::CommandListener {
        void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override
        {
            reached.count_down();
            open.wait();
            passed = true;
        }

        std::latch reached{1};
        std::latch open{1};
        std::atomic<bool> passed{false};
    };

    Blocker mListener;
};

} // namespace test
