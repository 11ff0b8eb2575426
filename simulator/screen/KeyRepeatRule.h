#pragma once

#include "toolkit/PegMessage.h"

#include <chrono>

namespace simulator {

/// A key that moves through a list goes on while it is held down.
struct KeyRepeatRule {
    static constexpr std::chrono::milliseconds DELAY{500};
    static constexpr std::chrono::milliseconds INTERVAL{100};

    static constexpr bool repeats(PegKey key) { return key == PK_UP || key == PK_DOWN; }
};

} // namespace simulator
