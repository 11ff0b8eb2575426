#pragma once

#include "simulator/screen/KeyRepeatRule.h"

#include <cstdint>
#include <vector>

namespace simulator {

/// How a key is held for so long by somebody who presses it again himself: the pause behind each press, the last one
/// before it is let go. A key that does not go on has one.
inline std::vector<std::int64_t> pausesOfHeld(PegKey key, std::int64_t milliseconds)
{
    std::vector<std::int64_t> pauses;
    auto pause = KeyRepeatRule::DELAY;
    for (; KeyRepeatRule::repeats(key) && milliseconds >= pause.count(); pause = KeyRepeatRule::INTERVAL) {
        pauses.push_back(pause.count());
        milliseconds -= pause.count();
    }
    pauses.push_back(milliseconds);
    return pauses;
}

} // namespace simulator
