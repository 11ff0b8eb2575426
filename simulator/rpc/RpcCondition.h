#pragma once

#include "simulator/core/ScreenCondition.h"
#include "simulator/rpc/RpcParams.h"

namespace simulator {

/// What `waitFor` is to wait for; an RpcError where the parameters make no condition.
ScreenCondition conditionIn(RpcParams& params);

} // namespace simulator
