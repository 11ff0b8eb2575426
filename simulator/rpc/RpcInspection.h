#pragma once

#include "host/inspection/RequestTrace.h"
#include "host/inspection/WidgetTree.h"
#include "simulator/screen/Json.h"

namespace simulator {

/// The answer to `trace`.
Json traceJson(bool isEnabled, const host::RequestTrace::Taken& taken);

/// The answer to `inspect`, as far as it does not take the GUI thread.
Json statusJson();

/// The rest of it, or that it is missing.
void addWidgets(Json& status, const std::optional<host::WidgetTree>& widgets);

} // namespace simulator
