#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace host {

/// A place in a text between two characters. Where texts of both directions meet these two may be far from each other
/// on the screen: `behind` says that the cursor stands at the end of the one before it, and not at the beginning of the
/// next one.
struct Caret {
    std::size_t at = 0;
    bool behind = false;

    friend bool operator==(const Caret&, const Caret&) = default;
};

/// In which order the characters of a line stand on the screen, and which units are one of them: a letter and its marks
/// are. Costs little where the text has neither marks nor letters that are read from the right.
class TextOrder {
public:
    explicit TextOrder(std::u16string_view line);

    /// Whether the line begins at the right.
    bool isFromTheRight() const { return mFromTheRight; }

    /// Where the character begins that ends at or before `at`, and where the one ends that begins there.
    std::size_t before(std::size_t at) const;
    std::size_t behind(std::size_t at) const;

    /// One character further on the screen; none where the line ends on that side.
    std::optional<Caret> toTheLeft(const Caret& caret) const { return moved(caret, false); }
    std::optional<Caret> toTheRight(const Caret& caret) const { return moved(caret, true); }

private:
    struct Character {
        std::size_t begin;
        std::size_t end;
        std::uint8_t level; ///< odd levels are read from the right
    };

    std::optional<Caret> moved(const Caret& caret, bool right) const;
    std::size_t gapOf(const Caret& caret) const;
    std::size_t indexBefore(std::size_t at) const;
    void bringIntoOrder();

    std::vector<Character> mCharacters;  ///< as they are read
    std::vector<std::size_t> mOnScreen;  ///< their indices, from left to right
    std::vector<std::size_t> mPositions; ///< where on the screen each one is
    bool mFromTheRight = false;
};

} // namespace host
