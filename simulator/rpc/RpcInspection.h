#pragma once

#include "host/inspection/RequestTrace.h"
#include "simulator/screen/Json.h"

namespace simulator {

/// The answer to `trace`.
Json traceJson(bool isEnabled, const host::RequestTrace::Taken& taken);

} // namespace simulator
