#pragma once

#include "simulator/launcher/Options.h"

namespace simulator {

/// Runs the application behind the page and returns what the launcher ends with.
int runBehindPage(const Options& options);

} // namespace simulator
