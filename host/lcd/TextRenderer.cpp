#include "host/lcd/TextRenderer.h"

#include "host/lcd/Utf8.h"

#include <algorithm>

namespace host {

namespace {

constexpr int BOX_STEP = 7; ///< from one to the next where there are no fonts

/// No character but a combining one is less than two pixels wide.
std::size_t mostCharacters(int width)
{
    return 64 + static_cast<std::size_t>(width) / 2;
}

/// What may be visible of the text.
std::u16string visiblePart(const PegString& text, int width)
{
    const std::size_t most = mostCharacters(width);
    std::u16string part(std::min(text.length(), most), u'\0');
    std::transform(text.data(), text.data() + part.size(), part.begin(), drawn);
    if (text.length() > most)
        part += ELLIPSIS;
    return part;
}

/// Without any font a text is a row of boxes: something is there, and how long it is.
TextMask boxes(std::size_t count, int width)
{
    constexpr int STEP = BOX_STEP, SIDE = 5, TOP = TextMask::ASCENT - 9, BOTTOM = TextMask::ASCENT;
    TextMask mask;
    mask.width = std::min(width, static_cast<int>(count) * STEP);
    mask.cut = static_cast<int>(count) * STEP > width;
    mask.lacksGlyph = true;
    mask.clear();
    for (int y = TOP; y < BOTTOM; ++y) {
        for (int x = 0; x < mask.width; ++x) {
            const int column = x % STEP;
            const bool edge = y == TOP || y == BOTTOM - 1 || column == 0 || column == SIDE - 1;
            if (column < SIDE && edge)
                mask.putInk(x, y);
        }
    }
    return mask;
}

std::vector<TextEdges> edgesOfBoxes(std::size_t count)
{
    std::vector<TextEdges> edges(count);
    for (std::size_t at = 0; at < count; ++at)
        edges[at] = {static_cast<int>(at) * BOX_STEP, static_cast<int>(at + 1) * BOX_STEP};
    return edges;
}

} // namespace

TextRenderer::TextRenderer(std::vector<std::string> folders) : mFolders(folders), mPlainText(std::move(folders)) {}

std::size_t TextRenderer::KeyHash::operator()(const Key& key) const noexcept
{
    const auto seed = static_cast<std::size_t>(key.width) * 2 + static_cast<std::size_t>(key.font);
    return std::hash<std::u16string>()(key.text) ^ (seed * 0x9E3779B97F4A7C15U);
}

std::size_t TextRenderer::Entry::bytes() const
{
    return (mask ? mask->bytes() : 0) + (edges ? edges->size() * sizeof(TextEdges) : 0);
}

const TextMask& TextRenderer::mask(Font font, const PegString& text, int width)
{
    const int most = std::max(width, 0);
    const Key key{font, most, visiblePart(text, most)};
    Entry& entry = entryFor(key);
    if (!entry.mask) {
        mBytes -= entry.bytes();
        entry.mask = draw(key);
        mBytes += entry.bytes();
        makeRoom();
    }
    return *entry.mask;
}

const std::vector<TextEdges>& TextRenderer::edges(Font font, const PegString& text)
{
    const Key key{font, TextMask::MAX_WIDTH, visiblePart(text, TextMask::MAX_WIDTH)};
    Entry& entry = entryFor(key);
    if (!entry.edges) {
        mBytes -= entry.bytes();
        entry.edges = measure(key);
        mBytes += entry.bytes();
        makeRoom();
    }
    return *entry.edges;
}

TextRenderer::Entry& TextRenderer::entryFor(const Key& key)
{
    const auto [found, isNew] = mEntries.try_emplace(key);
    Entry& entry = found->second;
    if (!isNew) {
        mUses.splice(mUses.begin(), mUses, entry.use);
        return entry;
    }
    entry.use = mUses.insert(mUses.begin(), &found->first);
    makeRoom();
    return entry;
}

/// Never of the one just used: the caller is about to use it.
bool TextRenderer::isFull() const
{
    return mEntries.size() > MAX_ENTRIES || (mBytes > MAX_BYTES && mEntries.size() > 1);
}

/// What has not been used for the longest time goes first.
void TextRenderer::makeRoom()
{
    while (isFull()) {
        const auto oldest = mEntries.find(*mUses.back());
        mUses.pop_back();
        mBytes -= oldest->second.bytes();
        mEntries.erase(oldest);
    }
}

TextMask TextRenderer::draw(const Key& key)
{
    if (key.text.empty() || key.width == 0)
        return {.cut = !key.text.empty(), .ink = {}};
    std::optional<TextMask> mask = mPlainText.draw(key.font, key.text, key.width);
    if (!mask && shaper() != nullptr)
        mask = shaper()->draw(key.font, key.text, key.width);
    return mask ? *std::move(mask) : boxes(key.text.size(), key.width);
}

std::vector<TextEdges> TextRenderer::measure(const Key& key)
{
    std::optional<std::vector<TextEdges>> edges = mPlainText.edges(key.font, key.text);
    if (edges && (edges->empty() || edges->back().end <= key.width))
        return *std::move(edges);
    if (shaper() != nullptr)
        edges = shaper()->edges(key.font, key.text, key.width);
    return edges ? *std::move(edges) : edgesOfBoxes(key.text.size());
}

TextShaper* TextRenderer::shaper()
{
    if (mShaper == nullptr)
        mShaper = drawing().newShaper(mFolders);
    return mShaper.get();
}

} // namespace host
