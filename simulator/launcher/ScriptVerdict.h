#pragma once

#include "simulator/launcher/Child.h"
#include "simulator/script/ScriptOutcome.h"

#include <string>

namespace simulator {

/// What the user is told in the end. Passed only when the application has ended well too.
struct ScriptVerdict {
    bool passed = false;
    std::string text;
};

/// `stuck`: the application was killed because it took too long.
ScriptVerdict judge(const std::string& fileName, const ScriptOutcome& outcome, const Ending& ending, bool stuck);

} // namespace simulator
