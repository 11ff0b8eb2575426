#include "utilities/CriticalSection.h"

void CriticalSection::enter()
{
    mMutex.lock();
}

void CriticalSection::leave()
{
    mMutex.unlock();
}
