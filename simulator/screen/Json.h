#pragma once

#include <nlohmann/json_fwd.hpp>

namespace simulator {

/// Keeps its members in the order in which they are written down.
using Json = nlohmann::ordered_json;

} // namespace simulator
