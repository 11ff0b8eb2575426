#pragma once

#include "PegInitAndCleanUp.h"

namespace doubles {

/// Starts and stops nothing, and counts how often it was asked to.
class FakeStartUp : public DisplayAPI::PegInitAndCleanUpIfc {
public:
    explicit FakeStartUp(int* starts = nullptr, int* stops = nullptr) : mStarts(starts), mStops(stops) {}

    void init() override { count(mStarts); }
    void cleanUp() override { count(mStops); }

private:
    static void count(int* counter)
    {
        if (counter != nullptr)
            ++*counter;
    }

    int* mStarts;
    int* mStops;
};

} // namespace doubles
