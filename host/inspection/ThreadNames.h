#pragma once

#include <string>
#include <vector>

namespace host {

/// The numbers of this process's threads.
std::vector<int> allThreads();

/// As the kernel has it; empty where there is no such thread in this process any more.
std::string threadName(int thread);

/// "worker-1 (4711)".
std::string nameAndNumber(const std::string& name, int thread);

} // namespace host
