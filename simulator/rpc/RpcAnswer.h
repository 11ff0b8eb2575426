#pragma once

#include "simulator/rpc/RpcError.h"
#include "simulator/screen/Json.h"

#include <functional>

namespace simulator {

/// Takes what comes of one request, once: a result or an error. From any thread, at once or later.
struct RpcAnswer {
    std::function<void(Json)> result;
    std::function<void(const RpcError&)> error;
};

} // namespace simulator
