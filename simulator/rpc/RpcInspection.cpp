#include "simulator/rpc/RpcInspection.h"

#include "host/inspection/FacadeNames.h"
#include "host/inspection/ThreadNames.h"
#include "host/inspection/TraceClock.h"
#include "host/inspection/WaitGraph.h"
#include "host/toolkit/Loop.h"
#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"

#include <nlohmann/json.hpp>

namespace simulator {

namespace {

using host::FacadeNames;

Json orNull(const std::optional<std::int64_t>& time)
{
    return time ? Json(*time) : Json();
}

Json recordJson(const host::TracedRequest& request)
{
    Json record = {{"facade", request.facade},   {"code", request.code},         {"number", request.number},
                   {"thread", request.thread},   {"queued", request.queued},     {"threadName", request.threadName},
                   {"run", orNull(request.run)}, {"done", orNull(request.done)}, {"waits", request.isAwaited}};
    if (!request.purgedBy.empty())
        record["purgedBy"] = request.purgedBy;
    return record;
}

const char* stateOf(const host::GuiStatus& gui)
{
    if (gui.thread == 0)
        return "ended";
    if (gui.state == host::GuiStatus::RESTS)
        return "resting";
    if (std::chrono::nanoseconds(gui.busyFor) >= host::Loop::STANDSTILL)
        return "standing";
    return gui.state == host::GuiStatus::NO_LOOP ? "noLoop" : "busy";
}

Json guiJson(const host::GuiStatus& gui, std::int64_t now)
{
    Json doing;
    if (gui.facade != nullptr)
        doing = {{"facade", FacadeNames::classOf(*gui.facade)},
                 {"code", FacadeNames::codeOf(*gui.facade, gui.code)},
                 {"since", now - gui.busyFor}};
    return {{"state", stateOf(gui)}, {"thread", gui.thread}, {"nanoseconds", gui.busyFor}, {"doing", std::move(doing)}};
}

Json cycleJson(const host::WaitCycle& cycle)
{
    Json names = Json::array();
    for (const int thread : cycle.threads)
        names.push_back(host::nameAndNumber(host::threadName(thread), thread));
    return names;
}

Json waitingJson(const host::WaitGraph& graph, std::int64_t now)
{
    Json all = Json::array();
    for (const host::BlockedCall& call : graph.calls()) {
        Json waiting = {{"thread", call.thread},
                        {"threadName", host::threadName(call.thread)},
                        {"facade", FacadeNames::classOf(*call.facade)},
                        {"code", FacadeNames::codeOf(*call.facade, call.code)},
                        {"nanoseconds", std::max<std::int64_t>(now - call.since, 0)}};
        if (const auto cycle = graph.cycleOf(call)) {
            waiting["cycle"] = cycleJson(*cycle);
            waiting["certain"] = cycle->isCertain;
        }
        all.push_back(std::move(waiting));
    }
    return all;
}

Json countersJson()
{
    const host::MessagePool::Counters pool = host::MessagePool::counters();
    constexpr std::uint64_t TURNS_OF_A_REQUEST = 4;
    return {{"queued", host::MainQueue::isThere() ? gtPegMainQueue->count() : 0},
            {"mostQueued", host::MainQueue::mostWaiting()},
            {"carriedOut", gRunningRequest.turns.load() / TURNS_OF_A_REQUEST},
            {"purged", gPurgedRequests.load()},
            {"lost", gLostRequests.load()},
            {"messages", pool.records},
            {"freeMessages", pool.free}};
}

Json threadsJson()
{
    Json threads = Json::array();
    for (const int thread : host::allThreads())
        threads.push_back({{"thread", thread}, {"name", host::threadName(thread)}});
    return threads;
}

Json nodeJson(const host::WidgetNode& node)
{
    Json children = Json::array();
    for (const host::WidgetNode& child : node.children)
        children.push_back(nodeJson(child));
    const PegRect& area = node.area;
    return {{"class", node.type},
            {"rectangle", {area.left, area.top, area.right, area.bottom}},
            {"focus", node.hasFocus},
            {"owner", node.owner},
            {"children", std::move(children)}};
}

} // namespace

Json traceJson(bool isEnabled, const host::RequestTrace::Taken& taken)
{
    Json records = Json::array();
    for (const host::TracedRequest& request : taken.records)
        records.push_back(recordJson(request));
    return {{"enabled", isEnabled}, {"records", std::move(records)}, {"lost", taken.lost}};
}

Json statusJson()
{
    const host::WaitGraph graph;
    const std::int64_t now = host::monotonicNow();
    return {{"now", now},
            {"gui", guiJson(graph.gui(), now)},
            {"waiting", waitingJson(graph, now)},
            {"counters", countersJson()},
            {"threads", threadsJson()}};
}

void addWidgets(Json& status, const std::optional<host::WidgetTree>& widgets)
{
    status["complete"] = widgets.has_value();
    status["displayables"] = widgets ? Json(widgets->displayables) : Json();
    status["widgets"] = widgets ? nodeJson(widgets->root) : Json();
}

} // namespace simulator
