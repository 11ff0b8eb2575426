#include "host/widgets/edit/PageLines.h"

#include "host/lcd/Lcd.h"
#include "host/lcd/TextOrder.h"
#include "host/lcd/TextRenderer.h"
#include "host/widgets/edit/Utf16.h"

#include <algorithm>
#include <cstdlib>

namespace host {

namespace {

constexpr std::size_t PART = 256; ///< characters that are measured at a time: more than a line has
constexpr char16_t NEW_LINE = u'\n';
constexpr char16_t FIRST_IDEOGRAPH = 0x2E80;
constexpr std::u16string_view NEVER_FIRST = u"、。，．！？」』）ーっゃゅょッャュョ";

} // namespace

void PageLines::lay(const std::u16string& text, Font font, int width)
{
    if (text == mText && width == mWidth)
        return;
    mText = text;
    mWidth = width;
    mLines.clear();
    std::size_t begin = 0;
    for (std::size_t end = mText.find(NEW_LINE); end != mText.npos; end = mText.find(NEW_LINE, begin)) {
        layParagraph(begin, end, font);
        mLines.back().end = end + 1;
        begin = end + 1;
    }
    layParagraph(begin, mText.size(), font);
}

/// The last line of a part may go on in the next one.
void PageLines::layParagraph(std::size_t begin, std::size_t end, Font font)
{
    do {
        const std::size_t partEnd = std::min(end, begin + PART);
        begin = layPart(begin, partEnd, partEnd == end, font);
    } while (begin < end);
}

std::size_t PageLines::layPart(std::size_t begin, std::size_t end, bool isLast, Font font)
{
    const std::u16string_view part = std::u16string_view(mText).substr(begin, end - begin);
    const std::vector<TextEdges> edges = Lcd::current()->textEdges(font, toPegString(part));
    const TextOrder order(part);
    std::size_t lineBegin = begin, mayBreak = begin;
    int width = 0, widthAtBreak = 0;
    for (std::size_t at = begin; at < end; at = begin + order.behind(at - begin)) {
        if (at > lineBegin && mayBreakBefore(at)) {
            mayBreak = at;
            widthAtBreak = width;
        }
        const int wide = std::abs(edges[at - begin].end - edges[at - begin].begin);
        if (width + wide > mWidth && at > lineBegin && mText[at] != u' ') {
            const bool atBreak = mayBreak > lineBegin;
            mLines.push_back({lineBegin, atBreak ? mayBreak : at});
            lineBegin = mLines.back().end;
            width -= atBreak ? widthAtBreak : width;
            mayBreak = lineBegin;
        }
        width += wide;
    }
    if (isLast || lineBegin == begin) {
        mLines.push_back({lineBegin, end});
        return end;
    }
    return lineBegin;
}

bool PageLines::mayBreakBefore(std::size_t at) const
{
    const char16_t before = mText[at - 1], next = mText[at];
    if (before == u' ' || before == u'-')
        return next != u' ';
    return (before >= FIRST_IDEOGRAPH || next >= FIRST_IDEOGRAPH) && NEVER_FIRST.find(next) == NEVER_FIRST.npos;
}

std::size_t PageLines::lineOf(std::size_t at) const
{
    const auto behind = std::ranges::upper_bound(mLines, at, {}, &Line::begin);
    return static_cast<std::size_t>(behind - mLines.begin()) - 1;
}

std::u16string_view PageLines::textOf(std::size_t line) const
{
    const Line& there = mLines[line];
    const std::size_t drawn = there.end - there.begin - (endsByItself(line) ? 1 : 0);
    return std::u16string_view(mText).substr(there.begin, drawn);
}

bool PageLines::endsByItself(std::size_t line) const
{
    const Line& there = mLines[line];
    return there.end > there.begin && mText[there.end - 1] == NEW_LINE;
}

} // namespace host
