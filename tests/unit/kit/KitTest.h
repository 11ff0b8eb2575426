#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/Widget.h"
#include "kit/Phone.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace test {

/// A program's telephone with a list on it. The test's thread is the GUI thread; its loop runs when the test says so.
class KitTest : public testing::Test {
protected:
    ~KitTest() override { DisplayAPI::Widget::setGuiThreadId(0); }

    /// Runs `work` as the application's thread beside the loop, which ends when it returns.
    void runBesideLoop(std::function<void()> work)
    {
        phone.run(list, [this, work = std::move(work)] {
            work();
            phone.quit();
        });
    }

    DisplayAPI::kit::Phone phone{{.hardware = "any"}};
    DisplayAPI::List list{0};
    DisplayAPI::Command command{"Call", DisplayAPI::Command::OK};
};

/// What a listener may take.
inline void beSlow()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
}

} // namespace test
