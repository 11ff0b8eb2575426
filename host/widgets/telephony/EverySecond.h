#pragma once

#include <functional>
#include <list>

namespace host {

/// Tells whoever counts seconds, once in each, while it lives: all of them at the same moments, so that the telephone
/// wakes once. GUI thread only.
class EverySecond {
public:
    /// `tell` may end this one, and begin and end others.
    explicit EverySecond(std::function<void()> tell);
    EverySecond(const EverySecond&) = delete;
    EverySecond& operator=(const EverySecond&) = delete;
    ~EverySecond();

private:
    class Beat;

    std::function<void()> mTell;
    std::list<EverySecond*>::iterator mPlace;
};

} // namespace host
