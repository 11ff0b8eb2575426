#include "apps/deskphone/Ear.h"

#include "kit/Fence.h"

namespace deskphone {

void Ear::stop()
{
    mIsDeaf = true;
    DisplayAPI::kit::Fence().wait();
}

void Ear::commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable*)
{
    if (!mIsDeaf)
        mHeard(command);
}

} // namespace deskphone
