#include "Measure.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <sched.h>
#include <thread>

namespace bench {

namespace {

/// Asked for before anybody is bound.
const cpu_set_t& allCpus()
{
    static const cpu_set_t cpus = [] {
        cpu_set_t set;
        sched_getaffinity(0, sizeof set, &set);
        return set;
    }();
    return cpus;
}

/// One figure for each round.
using Figures = std::vector<double>;

void print(const std::string& name, Figures figures, const std::string& unit)
{
    std::sort(figures.begin(), figures.end());
    std::printf("  %-58s %12.4g %12.4g %12.4g  %s\n", name.c_str(), figures.front(), figures[figures.size() / 2],
                figures.back(), unit.c_str());
}

/// Null where the case is not among those that have run.
const Figures* find(const std::vector<Case>& cases, const std::vector<Figures>& figures, const std::string& group,
                    const std::string& name)
{
    for (std::size_t i = 0; i < cases.size(); ++i)
        if (cases[i].group == group && cases[i].name == name)
            return &figures[i];
    return nullptr;
}

/// Round by round the largest figure of the peers where much is good, the smallest where little is.
Figures bestOf(const std::vector<const Figures*>& peers, Goal::Kind kind)
{
    Figures best = *peers.front();
    for (const Figures* peer : peers)
        for (std::size_t round = 0; round < best.size(); ++round)
            best[round] =
                kind == Goal::AT_LEAST ? std::max(best[round], (*peer)[round]) : std::min(best[round], (*peer)[round]);
    return best;
}

void print(const Goal& goal, const std::vector<Case>& cases, const std::vector<Figures>& figures)
{
    const Figures* const own = find(cases, figures, goal.group, goal.name);
    std::vector<const Figures*> peers;
    std::string name = goal.group + ", " + goal.name;
    for (const std::string& peer : goal.peers)
        if (const Figures* const found = find(cases, figures, goal.group, peer)) {
            peers.push_back(found);
            name += (peers.size() == 1 ? " to " : " or ") + peer;
        }
    if (own == nullptr || peers.empty() != goal.peers.empty())
        return;
    Figures ratios = *own;
    for (std::size_t round = 0; !peers.empty() && round < ratios.size(); ++round)
        ratios[round] /= bestOf(peers, goal.kind)[round];
    char wanted[64];
    std::snprintf(wanted, sizeof wanted, "at %s %g", goal.kind == Goal::AT_LEAST ? "least" : "most", goal.value);
    std::printf("%s\n", name.c_str());
    print("", ratios, wanted);
}

} // namespace

void measure(const std::vector<Case>& cases, const std::vector<Goal>& goals, int rounds)
{
    std::vector<Figures> figures(cases.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < cases.size(); ++i)
            figures[i].push_back(cases[i].run());
        std::fprintf(stderr, "round %d of %d\r", round + 1, rounds);
    }
    std::fprintf(stderr, "\n");
    std::string group;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        if (cases[i].group != group) {
            group = cases[i].group;
            std::printf("\n%-60s %12s %12s %12s\n", group.c_str(), "min", "median", "max");
        }
        print(cases[i].name, figures[i], cases[i].unit);
    }
    std::printf("\n%-60s %12s %12s %12s\n", "Goals", "min", "median", "max");
    for (const Goal& goal : goals)
        print(goal, cases, figures);
}

void pinTo(int cpu)
{
    cpu_set_t set = allCpus();
    if (cpu != ANY_CPU && CPU_ISSET(static_cast<std::size_t>(cpu), &set)) {
        CPU_ZERO(&set);
        CPU_SET(static_cast<std::size_t>(cpu), &set);
    }
    sched_setaffinity(0, sizeof set, &set);
}

void runProducers(int producers, const std::function<void(int)>& body)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < producers; ++i)
        threads.emplace_back(body, i);
    for (std::thread& thread : threads)
        thread.join();
}

std::vector<double> figuresOf(const std::string& program, std::size_t count)
{
    std::vector<double> figures(count, -1);
    FILE* const output = popen(("exec " + program).c_str(), "r");
    for (double& figure : figures)
        if (output == nullptr || std::fscanf(output, "%lf", &figure) != 1)
            std::fprintf(stderr, "benchmark broken: %s printed too little\n", program.c_str());
    if (output != nullptr)
        pclose(output);
    return figures;
}

} // namespace bench
