#include "Cases.h"

#include <string>

namespace bench {

namespace {

/// A process of its own prints how long after its start it is ready, and what else there is to say.
std::vector<double> figuresOfStarted(const std::string& program, std::size_t count)
{
    const auto now = Clock::now().time_since_epoch();
    const auto started = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return figuresOf(program + " " + std::to_string(started), count);
}

} // namespace

std::vector<Case> firstFrameCases(const std::string& directory)
{
    const auto firstFrame = [program = directory + "/first_frame"] { return figuresOfStarted(program, 2); };
    const auto bare = [program = directory + "/bare_process"] { return figuresOfStarted(program, 1); };
    return {{SCREEN, "First frame after process start", "ms", [=] { return firstFrame()[0]; }},
            {SCREEN, "First frame after process start, memory at most", "MB", [=] { return firstFrame()[1]; }},
            {SCREEN, "First frame after process start, reference: main() alone", "ms", [=] { return bare()[0]; }}};
}

} // namespace bench
