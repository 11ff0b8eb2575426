#include "Cases.h"

#include <string>

namespace bench {

namespace {

/// A process of its own prints how long after its start its first frame was finished.
double firstFrame(const std::string& program)
{
    const auto now = Clock::now().time_since_epoch();
    const auto started = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return figuresOf(program + " " + std::to_string(started), 1).front();
}

} // namespace

std::vector<Case> firstFrameCases(const std::string& directory)
{
    return {{SCREEN, "First frame after process start", "ms",
             [program = directory + "/first_frame"] { return firstFrame(program); }}};
}

} // namespace bench
