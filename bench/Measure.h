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

/// A case of `group` in proportion to the best of its peers there, round by round.
struct Goal {
    enum Kind { AT_LEAST, AT_MOST };

    std::string group;
    std::string name;
    std::vector<std::string> peers; ///< none: the figure itself
    Kind kind;
    double value;
};

/// Runs every case once per round, all cases in turn, so that what disturbs one disturbs its peers as well; then prints
/// the minimum, median and maximum of each, and of the goals whose cases have run.
void measure(const std::vector<Case>& cases, const std::vector<Goal>& goals, int rounds);

/// The figures that `program` prints, `count` of them; -1 in the place of those that it does not.
std::vector<double> figuresOf(const std::string& program, std::size_t count);

/// Binds the calling thread to one CPU, ANY_CPU or one that the machine has not to all.
constexpr int ANY_CPU = -1;
void pinTo(int cpu);

/// Where two threads that call each other run.
struct Seats {
    int caller = ANY_CPU;
    int loop = ANY_CPU;
};
constexpr Seats ONE_CPU{0, 0};
constexpr Seats TWO_CPUS{0, 1};
constexpr Seats FREE{};

/// Puts the calling thread into the caller's seat for as long as it lives.
class SeatedCaller {
public:
    explicit SeatedCaller(Seats seats) { pinTo(seats.caller); }
    SeatedCaller(const SeatedCaller&) = delete;
    SeatedCaller& operator=(const SeatedCaller&) = delete;
    ~SeatedCaller() { pinTo(ANY_CPU); }
};

/// Runs `body` on two threads at once with the numbers 0 and 1 (or just 0), and waits for them.
void runProducers(int producers, const std::function<void(int)>& body);

} // namespace bench
