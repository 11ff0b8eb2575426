#pragma once

#include "toolkit/PegMessage.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace simulator {

/// What a page says: `down KEY`, `up KEY`, `seen N` when it has drawn frame N, or `motion less` and `motion full` for
/// what its user can bear.
struct PageMessage {
    enum class Kind { DOWN, UP, SEEN, MOTION };

    Kind kind;
    PegKey key{};
    std::uint32_t frame = 0;
    bool wantsLessMotion = false;
};

/// Nothing where the text is none of these.
std::optional<PageMessage> parsePageMessage(std::string_view text);

} // namespace simulator
