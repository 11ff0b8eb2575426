#pragma once

#include <thread>

namespace simulator {

/// Makes Ctrl-C, a request to terminate and the end of the terminal an orderly end of the application, so that pages
/// hear of it. Where the application has a handler of its own, or ignores a signal, that stays. The second signal of a
/// kind ends the process at once. One at a time.
class QuitOnSignal {
public:
    QuitOnSignal();
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;
    ~QuitOnSignal();

private:
    std::thread mWaiter;
};

} // namespace simulator
