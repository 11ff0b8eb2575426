#include "Cases.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace bench {

namespace {

/// A process of its own prints how long after its start its first frame was finished.
double firstFrame(const std::string& program)
{
    const auto now = Clock::now().time_since_epoch();
    const auto started = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    const std::string command = "exec " + program + " " + std::to_string(started);
    FILE* output = popen(command.c_str(), "r");
    double milliseconds = -1;
    if (output == nullptr || std::fscanf(output, "%lf", &milliseconds) != 1)
        std::fprintf(stderr, "benchmark broken: %s printed no time\n", program.c_str());
    if (output != nullptr)
        pclose(output);
    return milliseconds;
}

} // namespace

std::vector<Case> firstFrameCases(const std::string& directory)
{
    return {{SCREEN, "First frame after process start", "ms",
             [program = directory + "/first_frame"] { return firstFrame(program); }}};
}

} // namespace bench
