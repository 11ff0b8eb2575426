#include "host/drawing/PangoThreads.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/prctl.h>
#include <thread>

namespace host {

namespace {

/// What Pango's own names of its threads begin with.
constexpr const char* NAME = "[pango]";

bool hasThread()
{
    std::error_code error;
    for (std::filesystem::directory_iterator task("/proc/self/task", error), end; !error && task != end;
         task.increment(error)) {
        std::ifstream comm(task->path() / "comm");
        std::string name;
        if (std::getline(comm, name) && name.starts_with(NAME))
            return true;
    }
    return false;
}

} // namespace

PangoThreads::PangoThreads()
{
    prctl(PR_GET_NAME, mOwnName.data());
    prctl(PR_SET_NAME, NAME);
}

PangoThreads::~PangoThreads()
{
    prctl(PR_SET_NAME, mOwnName.data());
}

void PangoThreads::await()
{
    constexpr std::chrono::milliseconds STEP{1};
    for (int patience = 1000; patience > 0 && hasThread(); --patience)
        std::this_thread::sleep_for(STEP);
}

} // namespace host
