#pragma once

#include <chrono>
#include <csignal>
#include <optional>
#include <sys/signalfd.h>

namespace simulator {

/// The signals that are the launcher's business, taken one at a time instead of interrupting it: a child's end, and
/// what asks the launcher to end or to stop. What it has been started to ignore it ignores. Make it before the child.
class Signals {
public:
    Signals();
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;
    ~Signals();

    /// Readable while a signal waits.
    int descriptor() const { return mDescriptor; }

    /// The next signal that waits; nothing where there is none.
    std::optional<signalfd_siginfo> take();

private:
    int mDescriptor;
};

} // namespace simulator
