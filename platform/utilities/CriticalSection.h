#pragma once

#include <mutex>

/// A lock that the thread holding it may enter again.
class CriticalSection {
public:
    void enter();
    void leave();

private:
    std::recursive_mutex mMutex;
};
