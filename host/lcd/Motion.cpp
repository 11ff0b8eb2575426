#include "host/lcd/Motion.h"

#include <atomic>

namespace host {

namespace {

std::atomic<bool> gIsReduced{false};

} // namespace

bool Motion::isReduced()
{
    return gIsReduced;
}

void Motion::reduce(bool reduced)
{
    gIsReduced = reduced;
}

} // namespace host
