#include "simulator/launcher/DisplayReminder.h"

#include <iostream>

namespace simulator {

DisplayReminder::DisplayReminder(std::chrono::milliseconds patience) : mDue(std::chrono::steady_clock::now() + patience)
{
}

void DisplayReminder::stillWaiting()
{
    if (mIsTold || std::chrono::steady_clock::now() < mDue)
        return;
    mIsTold = true;
    std::cerr << "phone: still waiting for the program's display" << std::endl;
}

} // namespace simulator
