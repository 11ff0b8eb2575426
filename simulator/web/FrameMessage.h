#pragma once

#include "host/lcd/Lcd.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace simulator {

/// A frame as pages get it.
///
/// `pixels` is binary, numbers with the low byte first: width (2 bytes), height (2), number (4), then the pixels row by
/// row, four to a byte, the leftmost in the highest bits; a row begins at a byte. `rows` is a rowsMessage().
struct FrameMessage {
    std::uint32_t number = 0;
    std::string pixels;
    std::string rows;
};

FrameMessage makeFrameMessage(const host::Picture& picture, std::uint32_t number, std::string_view language);

} // namespace simulator
