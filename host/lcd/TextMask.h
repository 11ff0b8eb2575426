#pragma once

#include <cstdint>
#include <vector>

namespace host {

/// A text as a stencil: one byte per pixel, 1 where there is ink. Its top row is ASCENT rows above the base line.
struct TextMask {
    static constexpr int ASCENT = 16;
    static constexpr int HEIGHT = 22;
    static constexpr int MAX_WIDTH = 8192; ///< for a text that is wanted whole

    int width = 0;
    bool cut = false;         ///< more text than fits: an ellipsis stands at its end
    bool rightToLeft = false; ///< the text begins at the right
    bool lacksGlyph = false;  ///< a character stands there as U+FFFD
    std::vector<std::uint8_t> ink;
};

/// Where a character of a text stands, in pixels from the stencil's left: where it begins to be read, and where it
/// ends.
struct TextEdges {
    int begin = 0;
    int end = 0;
};

} // namespace host
