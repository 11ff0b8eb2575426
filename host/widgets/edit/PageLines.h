#pragma once

#include "host/lcd/Fonts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// Where the lines of a page of text begin and end. A line ends behind the last space that fits, or where no character
/// fits any more, and where the text itself begins a new one.
class PageLines {
public:
    struct Line {
        std::size_t begin;
        std::size_t end;
    };

    /// Again only where the text or the width is another one than before.
    void lay(const std::u16string& text, Font font, int width);

    std::size_t count() const { return mLines.size(); }

    /// The one in which the character at that place is.
    std::size_t lineOf(std::size_t at) const;

    const Line& operator[](std::size_t line) const { return mLines[line]; }

    /// What is drawn of it.
    std::u16string_view textOf(std::size_t line) const;

    /// Whether the text begins a new line behind it.
    bool endsByItself(std::size_t line) const;

private:
    void layParagraph(std::size_t begin, std::size_t end, Font font);
    std::size_t layPart(std::size_t begin, std::size_t end, bool isLast, Font font);
    bool mayBreakBefore(std::size_t at) const;

    std::u16string mText;
    int mWidth = -1;
    std::vector<Line> mLines;
};

} // namespace host
