#include "simulator/script/Threads.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <unistd.h>

namespace simulator {

namespace {

/// How often each of the other threads has gone to sleep; nothing when one of them is awake.
using Naps = std::optional<std::map<std::string, std::string>>;

std::string valueOf(const std::string& name, const std::string& line)
{
    return line.starts_with(name) ? line.substr(line.find_first_not_of(" \t", name.size())) : std::string();
}

Naps napsOfOthers()
{
    std::map<std::string, std::string> naps;
    const std::string self = std::to_string(gettid());
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        const std::string id = thread.path().filename();
        if (id == self)
            continue;
        std::ifstream status(thread.path() / "status");
        for (std::string line; std::getline(status, line);) {
            if (valueOf("State:", line).starts_with('R'))
                return {};
            naps[id] += valueOf("voluntary_ctxt_switches:", line);
        }
    }
    return naps;
}

} // namespace

bool othersAreAtRest()
{
    const Naps first = napsOfOthers();
    return first && first == napsOfOthers();
}

} // namespace simulator
