#include "Cases.h"

#include <string>

namespace bench {

namespace {

/// A process of its own prints how long after its start its first frame was finished, and its memory.
std::vector<double> firstFrame(const std::string& program)
{
    const auto now = Clock::now().time_since_epoch();
    const auto started = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return figuresOf(program + " " + std::to_string(started), 2);
}

} // namespace

std::vector<Case> firstFrameCases(const std::string& directory)
{
    const std::string program = directory + "/first_frame";
    return {{SCREEN, "First frame after process start", "ms", [program] { return firstFrame(program)[0]; }},
            {SCREEN, "First frame after process start, memory at most", "MB",
             [program] { return firstFrame(program)[1]; }}};
}

} // namespace bench
