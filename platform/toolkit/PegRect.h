#pragma once

#include <cstdint>

/// A point of the screen; (0, 0) is the top left pixel.
struct PegPoint {
    std::int16_t x = 0;
    std::int16_t y = 0;

    friend bool operator==(const PegPoint&, const PegPoint&) = default;
};

/// A rectangle of the screen whose four edges all belong to it: (0, 0, 9, 9) is ten pixels wide and high.
/// Empty when right < left or bottom < top.
struct PegRect {
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t right = 0;
    std::int16_t bottom = 0;

    friend bool operator==(const PegRect&, const PegRect&) = default;
};
