#pragma once

#include "toolkit/PegMessage.h"

#include <functional>

namespace bench {

/// Until the GUI thread has nothing to do and the screen is painted.
void waitUntilShown();

/// Microseconds of CPU, of all threads, from a key to the finished frame: the mean of `count` keys, of which `key`
/// tells each. The time for which a frame is waited costs none.
double cpuToFrame(int count, const std::function<PegKey(int number)>& key);

} // namespace bench
