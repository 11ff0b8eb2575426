#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/Widget.h"
#include "kit/OnGuiThread.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace DisplayAPI::kit {

namespace detail {

/// Whether the kit runs the display's loop now. GUI thread only.
inline bool gLoopRuns = false;

/// Runs the display's loop until it is asked to end. GUI thread only, and not within itself.
inline void runLoop(Display& display)
{
    if (gLoopRuns) {
        std::fputs("DisplayAPI: the GUI thread cannot wait within its own loop; do this on another thread\n", stderr);
        std::abort();
    }
    gLoopRuns = true;
    display.exec();
    gLoopRuns = false;
}

} // namespace detail

/// Runs `work`, which may wait for the GUI thread, and returns when it is done. On the GUI thread `work` gets a thread
/// of its own and the loop runs meanwhile, even if it is asked to end; anywhere else `work` runs at once.
///
/// This is how a program ends: `work` stops its threads and listeners, which may be in the middle of a waiting call.
/// REQUIRES: not on the GUI thread while its loop runs, in a TimerEvent for one. `work` must not throw.
template <typename Work>
void offGuiThread(Work work)
{
    Display* const display = Display::latest();
    if (!Widget::isGuiThread() || display == nullptr)
        return work();
    bool isDone = false;
    const std::jthread worker([&] {
        work();
        onGuiThread([&] {
            isDone = true;
            display->shutdown();
        });
    });
    while (!isDone)
        detail::runLoop(*display);
}

} // namespace DisplayAPI::kit
