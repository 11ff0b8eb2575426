#pragma once

#include "toolkit/PegMessage.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace simulator {

/// What a page says: `down KEY`, `up KEY`, `seen N` when it has drawn frame N, `motion less` and `motion full` for what
/// its user can bear, or `exchange LINE` for the program's exchange.
struct PageMessage {
    enum class Kind { DOWN, UP, SEEN, MOTION, EXCHANGE };

    Kind kind;
    PegKey key{};
    std::uint32_t frame = 0;
    bool wantsLessMotion = false;
    std::string_view line = {}; ///< a part of what was parsed
};

/// Nothing where the text is none of these.
std::optional<PageMessage> parsePageMessage(std::string_view text);

} // namespace simulator
