#pragma once

#include <mutex>
#include <set>

namespace simulator {

/// What the pages' users can bear: while one of them wants less motion, the panel has it for all.
/// Safe from any thread.
class MotionWishes {
public:
    /// Whatever tells one page from another.
    using Page = const void*;

    MotionWishes() = default;
    MotionWishes(const MotionWishes&) = delete;
    MotionWishes& operator=(const MotionWishes&) = delete;
    ~MotionWishes();

    void wish(Page page, bool lessMotion);
    void leave(Page page) { wish(page, false); }

private:
    std::mutex mMutex;
    std::set<Page> mWantLess;
};

} // namespace simulator
