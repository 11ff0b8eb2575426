#pragma once

#include "host/inspection/WaitGraph.h"

#include <string>

namespace host {

/// For people: what the GUI thread is at, who waits for it and since when, cycles, and the stacks of all of them. Takes
/// its time: it interrupts each of the threads for a moment.
std::string standstillReport(const WaitGraph& graph);

} // namespace host
