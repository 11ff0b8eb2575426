#include "Cases.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr int CALLS = 4'000;

/// Processes that want a CPU all the time.
class BusyNeighbours {
public:
    explicit BusyNeighbours(int count)
    {
        for (int i = 0; i < count; ++i)
            mProcesses.push_back(start());
    }
    BusyNeighbours(const BusyNeighbours&) = delete;
    BusyNeighbours& operator=(const BusyNeighbours&) = delete;

    ~BusyNeighbours()
    {
        for (const pid_t process : mProcesses) {
            kill(process, SIGKILL);
            waitpid(process, nullptr, 0);
        }
    }

private:
    static pid_t start()
    {
        const pid_t process = fork();
        if (process > 0)
            return process;
        if (process < 0) {
            std::fprintf(stderr, "benchmark broken: there is no neighbour\n");
            std::exit(1);
        }
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (std::atomic<int> work{0};;)
            work.fetch_xor(1, std::memory_order_relaxed);
    }

    std::vector<pid_t> mProcesses;
};

struct Rival {
    const char* name;
    double (*call)(Seats, int);
};

constexpr Rival RIVALS[] = {{"DisplayAPI", libraryCall}, {TEXTBOOK, textbookCall}};

struct Seating {
    const char* name;
    Seats seats;
};

constexpr Seating SEATINGS[] = {{"free to move", FREE}, {"on one CPU", ONE_CPU}, {"on a CPU each", TWO_CPUS}};
constexpr const char* NEIGHBOURS[] = {"no", "one", "two"};

double amongNeighbours(int neighbours, double (*call)(Seats, int), Seats seats)
{
    const BusyNeighbours busy(neighbours);
    return call(seats, CALLS);
}

} // namespace

std::vector<Case> neighbourCases()
{
    std::vector<Case> cases;
    for (const Seating& seating : SEATINGS)
        for (int count = 0; count <= 2; ++count) {
            const std::string group =
                std::string("Call, threads ") + seating.name + ", " + NEIGHBOURS[count] + " busy neighbours";
            for (const Rival& rival : RIVALS)
                cases.push_back(
                    {group, rival.name, "ns", [=] { return amongNeighbours(count, rival.call, seating.seats); }});
        }
    return cases;
}

} // namespace bench
