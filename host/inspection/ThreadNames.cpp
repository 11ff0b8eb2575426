#include "host/inspection/ThreadNames.h"

#include <fstream>

namespace host {

std::string threadName(int thread)
{
    std::string name;
    std::getline(std::ifstream("/proc/self/task/" + std::to_string(thread) + "/comm"), name);
    return name;
}

std::string nameAndNumber(const std::string& name, int thread)
{
    return name + " (" + std::to_string(thread) + ")";
}

} // namespace host
