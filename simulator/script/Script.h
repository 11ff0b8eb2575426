#pragma once

#include "simulator/script/ScriptText.h"
#include "toolkit/PegMessage.h"

#include <cstdint>
#include <string>
#include <vector>

namespace simulator {

/// One line of a script.
struct Step {
    enum class Action {
        PRESS,
        HOLD,
        WAIT,
        ADVANCE,
        EXPECT,
        EXPECT_NOT,
        SCREENSHOT,
        DUMP,
        DUMP_JSON,
        COMPARE,
        SAY,
        CHOOSE,
        SELECT,
        TYPE,
        SET,
        COMMAND,
        BACK,
        DIAL,
        AWAIT,
        AWAIT_NOT
    };

    Action action;
    int line = 0;
    std::vector<PegKey> keys{};    ///< PRESS: one after the other; HOLD: exactly one
    std::int64_t milliseconds = 0; ///< HOLD, WAIT, ADVANCE
    std::string text{};            ///< the file's name, or what is said; COMPARE: its path
    ScriptText target{};           ///< what is expected, gone to, typed or dialled
    bool isLoose = false;          ///< a part of a text may be the target
    int nth = 1;                   ///< CHOOSE, SELECT, COMMAND: of those that are called so
    std::string wire{};            ///< SAY: to whom
};

struct Script {
    std::vector<Step> steps;
    std::vector<std::string> errors; ///< one sentence each, with file and line
    std::string name = "script";     ///< the file's, without folder and ending
};

} // namespace simulator
