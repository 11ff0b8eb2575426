#pragma once

#include "simulator/web/Endpoint.h"

#include <string>

namespace simulator {

/// Whether the page could be served there. A sentence for the user when not; empty when all is well.
std::string portProblem(const Endpoint& endpoint);

/// Whether somebody serves there now.
bool isServed(const Endpoint& endpoint);

} // namespace simulator
