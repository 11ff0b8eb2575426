#pragma once

#include <string>
#include <vector>

namespace host {

/// Where another thread of this process is, the innermost function first, or a sentence that says why that cannot be
/// told. It is interrupted for a moment by a real-time signal that the program does not use; system calls go on
/// afterwards, but for those that no handler lets go on, a poll() or a nanosleep(). One caller at a time.
std::vector<std::string> stackOf(int thread);

} // namespace host
