#include "simulator/web/MotionWishes.h"

#include "host/lcd/Motion.h"

namespace simulator {

MotionWishes::~MotionWishes()
{
    host::Motion::reduce(false);
}

void MotionWishes::wish(Page page, bool lessMotion)
{
    std::lock_guard lock(mMutex);
    if (lessMotion)
        mWantLess.insert(page);
    else
        mWantLess.erase(page);
    host::Motion::reduce(!mWantLess.empty());
}

} // namespace simulator
