#include "host/inspection/ThreadNames.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace host {

std::vector<int> allThreads()
{
    std::vector<int> threads;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task"))
        threads.push_back(std::stoi(thread.path().filename()));
    std::ranges::sort(threads);
    return threads;
}

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
