#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "unit/host/variants/Painted.h"

#include <functional>
#include <utility>

namespace test {

/// The observer of a screen while it lives: counts, and does what it is given each time.
class Told : public DisplayAPI::DisplayEventIfc {
public:
    explicit Told(
        DisplayAPI::Display& display, std::function<void()> act = [] {})
        : mDisplay(display), mAct(std::move(act))
    {
        mDisplay.subscribe(this);
    }
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;
    ~Told() override { mDisplay.unSubscribe(); }

    void displayChanged(std::string) override
    {
        ++mTimes;
        mAct();
    }

    /// How often since the last time that it was asked.
    int take() { return std::exchange(mTimes, 0); }

private:
    DisplayAPI::Display& mDisplay;
    std::function<void()> mAct;
    int mTimes = 0;
};

/// How often the observer of the screen is told while that is done, all of which is painted.
inline int changesBy(DisplayAPI::Display& display, const std::function<void()>& work)
{
    Told told(display);
    expectPaintedAsAnew(work);
    return told.take();
}

} // namespace test
