#pragma once

#include <atomic>

namespace doubles {

/// What the recording private sides answer when they are asked. Safe from any thread.
struct Answers {
    std::atomic<int> size{0};
    std::atomic<int> selectedIndex{-1};
    std::atomic<bool> isSelected{false};
    std::atomic<int> icon{0};

    static Answers& instance();

    /// The answers that a process starts with.
    void reset();
};

} // namespace doubles
