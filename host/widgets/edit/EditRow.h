#pragma once

#include "host/lcd/TextOrder.h"
#include "host/lcd/TextRenderer.h"
#include "host/widgets/Reading.h"

#include <string>
#include <vector>

namespace host {

/// One line of what is edited as it stands on the panel: where its characters are, from the edge at which it begins to
/// be read.
class EditRow {
public:
    static constexpr int CARET_WIDTH = 2; ///< with the air beside it

    EditRow(std::u16string_view text, Font font);

    const std::u16string& text() const { return mText; }
    int width() const { return mWidth; }
    /// An empty one begins where texts of the language do.
    bool isFromTheRight() const { return mText.empty() ? isReadFromTheRight() : mOrder.isFromTheRight(); }

    /// Pixels between that edge and the cursor.
    int distanceOf(const Caret& caret) const;

    /// Where the cursor is next to such a distance; behind the last character only where it is asked for.
    Caret caretNear(int distance, bool alsoBehindTheLast) const;

    /// Both in the cell; `gone` pixels of the line lie beyond its edge. The candidate is the character before the
    /// cursor.
    void drawCaret(PegPainter& painter, const PegRect& cell, const Caret& caret, int gone, Level level) const;
    void drawCandidate(PegPainter& painter, const PegRect& cell, const Caret& caret, int gone, Level level) const;

private:
    int distance(int x) const { return isFromTheRight() ? mWidth - x : x; }
    int leftOf(const PegRect& cell, int distance, int width, int gone) const;

    std::u16string mText;
    TextOrder mOrder;
    std::vector<TextEdges> mEdges;
    int mWidth = 0;
};

} // namespace host
