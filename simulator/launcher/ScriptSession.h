#pragma once

#include "simulator/launcher/Options.h"

namespace simulator {

/// Runs the application under a script and returns what the launcher ends with: 0 when the script has passed.
int runScript(const Options& options);

} // namespace simulator
