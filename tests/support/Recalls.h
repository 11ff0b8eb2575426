#pragma once

#include "host/utilities/Log.h"

#include <atomic>

namespace test {

/// Counts the notifications that are recalled while it lives: the executor logs each.
class Recalls {
public:
    Recalls()
        : mSink(host::Log::addSink([this](const host::LogLine&) { ++mCount; },
                                   {.level = 5, .modulePrefix = "DisplayAPI::AbbreviatedItemPrivate"}))
    {
    }
    Recalls(const Recalls&) = delete;
    Recalls& operator=(const Recalls&) = delete;
    ~Recalls() { host::Log::removeSink(mSink); }

    int count() const { return mCount; }

private:
    std::atomic<int> mCount{0};
    int mSink;
};

} // namespace test
