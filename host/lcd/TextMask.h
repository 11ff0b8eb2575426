#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace host {

/// A text as a stencil: one bit per pixel, set where there is ink. Its top row is ASCENT rows above the base line.
struct TextMask {
    static constexpr int ASCENT = 16;
    static constexpr int HEIGHT = 22;
    static constexpr int MAX_WIDTH = 8192; ///< for a text that is wanted whole

    /// Pixels that lie side by side, the leftmost the lowest bit.
    using Word = std::uint64_t;
    static constexpr int WORD_BITS = 64;

    int width = 0;
    bool cut = false;         ///< more text than fits: an ellipsis stands at its end
    bool rightToLeft = false; ///< the text begins at the right
    bool lacksGlyph = false;  ///< a character stands there as U+FFFD
    std::vector<Word> ink;    ///< row by row, each in whole words; what is behind its end is 0

    /// As much as the width needs.
    void clear() { ink.assign(wordsPerRow() * HEIGHT, 0); }
    std::size_t bytes() const { return ink.size() * sizeof(Word); }

    std::size_t wordsPerRow() const { return static_cast<std::size_t>((width + WORD_BITS - 1) / WORD_BITS); }
    std::span<Word> row(int y)
    {
        return std::span(ink).subspan(static_cast<std::size_t>(y) * wordsPerRow(), wordsPerRow());
    }
    std::span<const Word> row(int y) const
    {
        return std::span(ink).subspan(static_cast<std::size_t>(y) * wordsPerRow(), wordsPerRow());
    }

    bool isInk(int x, int y) const { return (row(y)[wordOf(x)] & bitOf(x)) != 0; }
    void putInk(int x, int y) { row(y)[wordOf(x)] |= bitOf(x); }

private:
    static std::size_t wordOf(int x) { return static_cast<std::size_t>(x / WORD_BITS); }
    static Word bitOf(int x) { return Word{1} << (x % WORD_BITS); }
};

/// Where a character of a text stands, in pixels from the stencil's left: where it begins to be read, and where it
/// ends.
struct TextEdges {
    int begin = 0;
    int end = 0;
};

} // namespace host
