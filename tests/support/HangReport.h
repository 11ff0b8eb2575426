#pragma once

#include <string>

namespace test {

/// What can be seen of a process that hangs: its threads with their states, the GUI loop and the main queue.
std::string hangReport();

} // namespace test
