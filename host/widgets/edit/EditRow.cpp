#include "host/widgets/edit/EditRow.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/widgets/edit/Utf16.h"

#include <algorithm>
#include <cstdlib>

namespace host {

EditRow::EditRow(std::u16string_view text, Font font) : mText(text), mOrder(text)
{
    const PegString shown = toPegString(text);
    mEdges = Lcd::current()->textEdges(font, shown);
    for (const TextEdges& edges : mEdges)
        mWidth = std::max({mWidth, edges.begin, edges.end});
}

int EditRow::distanceOf(const Caret& caret) const
{
    if (mEdges.empty())
        return 0;
    const std::size_t last = mEdges.size() - 1;
    if (caret.at > 0 && (caret.behind || caret.at > last))
        return distance(mEdges[std::min(caret.at - 1, last)].end);
    return distance(mEdges[caret.at].begin);
}

Caret EditRow::caretNear(int wanted, bool alsoBehindTheLast) const
{
    Caret nearest;
    const auto consider = [&](const Caret& caret) {
        if (std::abs(distanceOf(caret) - wanted) < std::abs(distanceOf(nearest) - wanted))
            nearest = caret;
    };
    for (std::size_t at = 0; at < mEdges.size(); at = mOrder.behind(at)) {
        consider({at, false});
        const std::size_t end = mOrder.behind(at);
        if (end < mEdges.size() || alsoBehindTheLast)
            consider({end, true});
    }
    return nearest;
}

int EditRow::leftOf(const PegRect& cell, int distance, int width, int gone) const
{
    return isFromTheRight() ? cell.right + 1 - (distance - gone) - width : cell.left + distance - gone;
}

void EditRow::drawCaret(PegPainter& painter, const PegRect& cell, const Caret& caret, int gone, Level level) const
{
    const int left = leftOf(cell, distanceOf(caret), 1, gone);
    painter.fill(rectAt(std::clamp<int>(left, cell.left, cell.right), cell.top + 2, 1, heightOf(cell) - 4), level);
}

void EditRow::drawCandidate(PegPainter& painter, const PegRect& cell, const Caret& caret, int gone, Level level) const
{
    const TextEdges& edges = mEdges[std::min(caret.at, mEdges.size()) - 1];
    const int begin = std::min(distance(edges.begin), distance(edges.end));
    const int width = std::abs(edges.end - edges.begin);
    painter.fill(rectAt(leftOf(cell, begin, width, gone), cell.bottom - 1, width, 1), level);
}

} // namespace host
