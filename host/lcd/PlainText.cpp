#include "host/lcd/PlainText.h"

#include <algorithm>
#include <filesystem>

namespace host {

namespace {

std::string pathOf(const char* file, const std::vector<std::string>& folders)
{
    std::error_code error;
    for (const std::string& folder : folders)
        if (std::filesystem::exists(folder + "/" + file, error))
            return folder + "/" + file;
    return {};
}

/// What is beyond the stencil's edges is lost, but for what the last words of its rows have room for.
void putInk(TextMask& mask, const Letter& letter, int x)
{
    constexpr int BITS = TextMask::WORD_BITS;
    const int left = std::max(0, x + letter.left), gone = std::max(0, -(x + letter.left));
    const auto stride = mask.wordsPerRow(), word = static_cast<std::size_t>(left / BITS);
    if (gone >= BITS || word >= stride)
        return;
    const int shift = left % BITS;
    const bool goesOn = shift > 0 && word + 1 < stride;
    const int top = TextMask::ASCENT - letter.top;
    const int last = std::min(static_cast<int>(letter.rows.size()), TextMask::HEIGHT - top);
    for (int row = std::max(0, -top); row < last; ++row) {
        const TextMask::Word ink = letter.rows[static_cast<std::size_t>(row)] >> gone;
        TextMask::Word* const to = &mask.ink[static_cast<std::size_t>(top + row) * stride + word];
        to[0] |= ink << shift;
        if (goesOn)
            to[1] |= ink >> (BITS - shift);
    }
}

void cutOffBehindTheEnd(TextMask& mask)
{
    const int used = mask.width % TextMask::WORD_BITS;
    for (int y = 0; used != 0 && y < TextMask::HEIGHT; ++y)
        mask.row(y).back() &= (TextMask::Word{1} << used) - 1;
}

} // namespace

std::optional<std::vector<TextEdges>> PlainText::edges(Font font, std::u16string_view text)
{
    const Line* const line = lay(font, text);
    if (line == nullptr)
        return {};
    std::vector<TextEdges> edges;
    edges.reserve(line->size());
    for (const Place& place : *line)
        edges.push_back({place.begin, place.end});
    return edges;
}

std::optional<TextMask> PlainText::draw(Font font, std::u16string_view text, int width)
{
    const Line* line = lay(font, text);
    if (line == nullptr)
        return {};
    const int whole = endOf(*line);
    Line shorter;
    if (whole > width) {
        shorter = *line;
        line = &shorter;
        if (!cut(shorter, faceOf(font), width))
            return {};
    }
    TextMask mask{.width = std::min(whole, width), .cut = whole > width, .ink = {}};
    mask.clear();
    for (const Place& place : *line)
        putInk(mask, *place.letter, place.begin);
    cutOffBehindTheEnd(mask);
    return mask;
}

const PlainText::Line* PlainText::lay(Font font, std::u16string_view text)
{
    if (mLaid.font != font || mLaid.text != text) {
        const bool goesOn = mLaid.isPlain && mLaid.font == font;
        const auto same = std::ranges::mismatch(mLaid.text, text).in1 - mLaid.text.begin();
        mLaid.font = font;
        mLaid.text = text;
        mLaid.isPlain = layFrom(goesOn ? static_cast<std::size_t>(same) : 0, mLaid.line, faceOf(font), text);
    }
    return mLaid.isPlain ? &mLaid.line : nullptr;
}

/// What stands before `at` is in the line already. How wide the last of these is depends on what follows it, and which
/// script those in front of the first letter are of depends on that letter.
bool PlainText::layFrom(std::size_t at, Line& line, LetterFace& face, std::u16string_view text)
{
    line.resize(at);
    line.reserve(text.size());
    for (const char16_t character : text.substr(at)) {
        const Letter* const letter = face.letter(character);
        if (letter == nullptr)
            return false;
        line.push_back({.letter = letter});
    }
    const bool knowsScript = firstScriptOf(std::span(line).first(at)) != Script::COMMON;
    placeFrom(knowsScript ? at - 1 : 0, line, face);
    return !needsShaper(line);
}

/// Letters of two scripts stand apart.
void PlainText::placeFrom(std::size_t first, Line& line, const LetterFace& face)
{
    Script script = first > 0 ? line[first].script : firstScriptOf(line);
    int x = first > 0 ? line[first].begin : 0;
    for (std::size_t at = first; at < line.size(); ++at) {
        const Letter& letter = *line[at].letter;
        const Letter* const next = at + 1 < line.size() ? line[at + 1].letter : nullptr;
        const bool isLast = next == nullptr || (next->script != Script::COMMON && next->script != script);
        line[at].script = script;
        line[at].begin = x;
        line[at].end = x += isLast ? letter.advance : face.advanceBefore(letter, *next);
        script = isLast && next != nullptr ? next->script : script;
    }
}

/// Which script a closing bracket between two of them is of depends on the opening one.
bool PlainText::needsShaper(const Line& line)
{
    return std::ranges::any_of(line, [](const Place& place) { return place.letter->comesInPairs; }) &&
           std::ranges::any_of(line, [&](const Place& place) { return place.script != line.front().script; });
}

Script PlainText::firstScriptOf(std::span<const Place> line)
{
    const auto first =
        std::ranges::find_if(line, [](const Place& place) { return place.letter->script != Script::COMMON; });
    return first != line.end() ? first->letter->script : Script::COMMON;
}

int PlainText::endOf(const Line& line)
{
    return line.empty() ? 0 : line.back().end;
}

/// The last letter goes at least. The others stay where they are.
bool PlainText::cut(Line& line, LetterFace& face, int width)
{
    const Letter* const dots = face.letter(ELLIPSIS);
    if (dots == nullptr)
        return false;
    do
        line.pop_back();
    while (!line.empty() && endOf(line) + dots->advance > width);
    line.push_back({dots, endOf(line), endOf(line) + dots->advance, dots->script});
    return true;
}

LetterFace& PlainText::faceOf(Font font)
{
    if (mLibrary == nullptr)
        mLibrary = startFontLibrary();
    auto& face = mFaces[static_cast<std::size_t>(font)];
    const FontStyle& style = styleOf(font);
    if (face == nullptr)
        face = std::make_unique<LetterFace>(mLibrary, pathOf(FACES[style.face].file, mFolders), style.pixels);
    return *face;
}

} // namespace host
