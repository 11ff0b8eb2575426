#include "Cases.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

std::vector<bench::Case> allCases(const std::string& directory)
{
    std::vector<std::vector<bench::Case>> sources{
        bench::libraryCases(),       bench::traceCases(),      bench::amongPostersCases(),
        bench::neighbourCases(),     bench::listCases(),       bench::menuCases(),
        bench::dialerCases(),        bench::popupCases(),      bench::formCases(),
        bench::callLogCases(),       bench::tabCases(),        bench::searchListCases(),
        bench::treeCases(),          bench::idleCases(),       bench::desktopCases(),
        bench::callCases(),          bench::callRowsCases(),   bench::contactSearchCases(),
        bench::incomingCallCases(),  bench::deskStartCases(),  bench::deskCallsCases(),
        bench::repaintCases(),       bench::screenTextCases(), bench::languageCases(),
        bench::observerCases(),      bench::destroyingCases(), bench::firstFrameCases(directory),
        bench::heapCases(directory), bench::futexCases(),      bench::bareListCases(),
        bench::mutexLoopCases()};
#ifdef BENCH_LIBUV
    sources.push_back(bench::libuvCases());
#endif
#ifdef BENCH_ASIO
    sources.push_back(bench::asioCases());
#endif
#ifdef BENCH_GLIB
    sources.push_back(bench::glibCases());
#endif
#ifdef BENCH_QT
    sources.push_back(bench::qtCases());
#endif
#ifdef BENCH_QT_WIDGETS
    sources.push_back(bench::listWidgetCases(directory));
#endif
    std::vector<bench::Case> cases;
    for (const auto& source : sources)
        cases.insert(cases.end(), source.begin(), source.end());
    return cases;
}

/// Whether a goal is about the case, or about one that is compared with it.
bool isWanted(const bench::Case& c)
{
    const auto goals = bench::goals();
    return std::any_of(goals.begin(), goals.end(), [&](const bench::Goal& goal) {
        const auto& peers = goal.peers;
        return goal.group == c.group &&
               (goal.name == c.name || std::find(peers.begin(), peers.end(), c.name) != peers.end());
    });
}

/// Groups in the order in which the library gives them.
void sortByGroup(std::vector<bench::Case>& cases)
{
    std::vector<std::string> groups;
    for (const bench::Case& c : cases)
        if (std::find(groups.begin(), groups.end(), c.group) == groups.end())
            groups.push_back(c.group);
    const auto rank = [&](const bench::Case& c) { return std::find(groups.begin(), groups.end(), c.group); };
    std::stable_sort(cases.begin(), cases.end(), [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 11;
    const std::string filter = argc > 2 ? argv[2] : "";
    if (rounds < 1) {
        std::fprintf(stderr, "usage: displayapi_bench [ROUNDS [goals | PART-OF-A-GROUP'S-OR-CASE'S-NAME]]\n");
        return 2;
    }
    const auto directory = std::filesystem::canonical("/proc/self/exe").parent_path();
    auto cases = allCases(directory.string());
    std::erase_if(cases, [&](const bench::Case& c) {
        if (filter == "goals")
            return !isWanted(c);
        return c.group.find(filter) == std::string::npos && c.name.find(filter) == std::string::npos;
    });
    sortByGroup(cases);
    bench::measure(cases, bench::goals(), rounds);
    return 0;
}
