#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

inline double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// One thing to measure. `run` does it once and returns a figure in `unit`.
struct Case {
    std::string group; ///< what is compared with one another
    std::string name;
    std::string unit;
    std::function<double()> run;
};

/// Runs every case once per round, all cases in turn, so that what disturbs one disturbs its peers as well; then prints
/// the minimum, median and maximum of each.
void measure(const std::vector<Case>& cases, int rounds);

/// The figures that `program` prints, `count` of them; -1 in the place of those that it does not.
std::vector<double> figuresOf(const std::string& program, std::size_t count);

/// Binds the calling thread to one CPU, or to all.
void pinTo(int cpu);
void unpin();

/// Runs `body` on two threads at once with the numbers 0 and 1 (or just 0), and waits for them.
void runProducers(int producers, const std::function<void(int)>& body);

} // namespace bench
