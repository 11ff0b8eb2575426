#include "simulator/rpc/RpcInspection.h"

#include <nlohmann/json.hpp>

namespace simulator {

namespace {

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

} // namespace

Json traceJson(bool isEnabled, const host::RequestTrace::Taken& taken)
{
    Json records = Json::array();
    for (const host::TracedRequest& request : taken.records)
        records.push_back(recordJson(request));
    return {{"enabled", isEnabled}, {"records", std::move(records)}, {"lost", taken.lost}};
}

} // namespace simulator
