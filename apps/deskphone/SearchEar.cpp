#include "apps/deskphone/SearchEar.h"

#include "kit/Fence.h"

namespace deskphone {

void SearchEar::stop()
{
    mIsDeaf = true;
    DisplayAPI::kit::Fence().wait();
}

void SearchEar::itemStateChanged(DisplayAPI::Item*)
{
    if (!mIsDeaf)
        mHeard();
}

} // namespace deskphone
