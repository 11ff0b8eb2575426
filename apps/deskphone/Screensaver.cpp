#include "apps/deskphone/Screensaver.h"

namespace deskphone {

namespace {

constexpr int NOT_STARTED = 0;
constexpr int MS_PER_MINUTE = 60'000;

} // namespace

Screensaver::Screensaver(std::function<void()> begin) : mBegin(std::move(begin)), mTimer(NOT_STARTED)
{
    mTimer.enableSingleShot(true);
    mTimer.addEventListener(this);
}

void Screensaver::wait()
{
    if (const int minutes = mMinutes; minutes > 0)
        mTimer.start(minutes * MS_PER_MINUTE);
    else
        mTimer.stop();
}

} // namespace deskphone
