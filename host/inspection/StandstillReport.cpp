#include "host/inspection/StandstillReport.h"

#include "host/inspection/FacadeNames.h"
#include "host/inspection/ThreadNames.h"
#include "host/inspection/ThreadStack.h"
#include "host/inspection/TraceClock.h"

#include <iomanip>
#include <set>
#include <sstream>

namespace host {

namespace {

/// Callers whose stacks are told; the others wait for the same, unless they are in the cycle.
constexpr std::size_t MOST_STACKS = 8;

std::string named(int thread)
{
    return nameAndNumber(threadName(thread), thread);
}

std::string request(const std::type_info& facade, int code)
{
    return FacadeNames::classOf(facade) + " " + FacadeNames::codeOf(facade, code);
}

std::string seconds(std::int64_t nanoseconds)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << static_cast<double>(nanoseconds) / 1e9 << " s";
    return text.str();
}

void tellStack(std::ostream& report, int thread)
{
    for (const std::string& function : stackOf(thread))
        report << "\n    " << function;
}

std::string workOf(const GuiStatus& gui)
{
    if (gui.facade != nullptr)
        return "it carries out " + request(*gui.facade, gui.code);
    return gui.state == GuiStatus::NO_LOOP ? "it runs no loop" : "it is at a key, a timer or a frame";
}

void tellGui(std::ostream& report, const GuiStatus& gui)
{
    report << "The GUI thread " << named(gui.thread);
    if (gui.state == GuiStatus::RESTS)
        report << " waits for work";
    else
        report << " has been at one thing for " << seconds(gui.busyFor) << ": " << workOf(gui);
    tellStack(report, gui.thread);
}

void tellCall(std::ostream& report, const BlockedCall& call)
{
    report << '\n'
           << named(call.thread) << " has waited for it for " << seconds(monotonicNow() - call.since) << ": "
           << request(*call.facade, call.code);
    tellStack(report, call.thread);
}

void tellCycle(std::ostream& report, const WaitCycle& cycle)
{
    report << '\n' << (cycle.isCertain ? "A cycle: " : "A cycle, if the GUI thread waits for this one: ");
    for (std::size_t i = 0; i < cycle.threads.size(); ++i)
        report << (i > 0 ? " waits for " : "") << named(cycle.threads[i]);
}

} // namespace

std::string standstillReport(const WaitGraph& graph)
{
    std::ostringstream report;
    tellGui(report, graph.gui());
    std::set<std::vector<int>> told;
    std::size_t stacks = 0;
    std::size_t others = 0;
    for (const BlockedCall& call : graph.calls()) {
        const auto cycle = graph.cycleOf(call);
        if (stacks >= MOST_STACKS && !(cycle && cycle->isCertain)) {
            ++others;
            continue;
        }
        ++stacks;
        tellCall(report, call);
        if (cycle && told.insert(cycle->threads).second)
            tellCycle(report, *cycle);
    }
    if (others > 0)
        report << "\nand " << others << " others wait for it";
    return report.str();
}

} // namespace host
