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

/// What is beyond the stencil's edges is lost.
void putInk(TextMask& mask, const Letter& letter, int x)
{
    const int left = x + letter.left, top = TextMask::ASCENT - letter.top;
    const int firstRow = std::max(0, -top), lastRow = std::min(letter.height, TextMask::HEIGHT - top);
    const int first = std::max(0, -left), last = std::min(letter.width, mask.width - left);
    for (int row = firstRow; row < lastRow; ++row) {
        const std::uint8_t* from = letter.ink.data() + row * letter.width;
        std::uint8_t* to = mask.ink.data() + (top + row) * mask.width + left;
        for (int column = first; column < last; ++column)
            to[column] |= from[column];
    }
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
    mask.ink.resize(static_cast<std::size_t>(mask.width * TextMask::HEIGHT));
    for (const Place& place : *line)
        putInk(mask, *place.letter, place.begin);
    return mask;
}

const PlainText::Line* PlainText::lay(Font font, std::u16string_view text)
{
    if (mLaid.font != font || mLaid.text != text) {
        mLaid.font = font;
        mLaid.text = text;
        mLaid.isPlain = layAnew(mLaid.line, faceOf(font), text);
    }
    return mLaid.isPlain ? &mLaid.line : nullptr;
}

bool PlainText::layAnew(Line& line, LetterFace& face, std::u16string_view text)
{
    line.clear();
    line.reserve(text.size());
    for (const char16_t character : text) {
        const Letter* const letter = face.letter(character);
        if (letter == nullptr)
            return false;
        line.push_back({letter, 0, 0});
    }
    return place(line, face);
}

/// Letters of two scripts stand apart. Which script a closing bracket between them is of depends on the opening one:
/// such a line is not for here.
bool PlainText::place(Line& line, const LetterFace& face)
{
    Script script = firstScriptOf(line);
    bool isMixed = false, hasPairs = false;
    int x = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const Letter& letter = *line[at].letter;
        const Letter* const next = at + 1 < line.size() ? line[at + 1].letter : nullptr;
        const bool isLast = next == nullptr || (next->script != Script::COMMON && next->script != script);
        line[at].begin = x;
        line[at].end = x += isLast ? letter.advance : face.advanceBefore(letter, *next);
        isMixed = isMixed || (isLast && next != nullptr);
        hasPairs = hasPairs || letter.comesInPairs;
        script = isLast && next != nullptr ? next->script : script;
    }
    return !isMixed || !hasPairs;
}

Script PlainText::firstScriptOf(const Line& line)
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
    line.push_back({dots, endOf(line), endOf(line) + dots->advance});
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
