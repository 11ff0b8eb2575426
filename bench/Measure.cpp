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

void print(const Case& measured, std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    std::printf("  %-58s %12.4g %12.4g %12.4g  %s\n", measured.name.c_str(), figures.front(),
                figures[figures.size() / 2], figures.back(), measured.unit.c_str());
}

} // namespace

void measure(const std::vector<Case>& cases, int rounds)
{
    std::vector<std::vector<double>> figures(cases.size());
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
        print(cases[i], figures[i]);
    }
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
