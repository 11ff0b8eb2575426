#include "host/lcd/TextRenderer.h"

#include "host/lcd/PangoThreads.h"

#include <algorithm>
#include <cstring>
#include <pango/pangocairo.h>

namespace host {

namespace {

constexpr char16_t ELLIPSIS = 0x2026;

bool isControl(PegChar unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029;
}

bool isSurrogate(PegChar unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

char16_t shown(PegChar unit)
{
    if (isControl(unit))
        return u' ';
    return isSurrogate(unit) ? REPLACEMENT : static_cast<char16_t>(unit);
}

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
    std::transform(text.data(), text.data() + part.size(), part.begin(), shown);
    if (text.length() > most)
        part += ELLIPSIS;
    return part;
}

void appendUtf8(std::string& utf8, char16_t c)
{
    if (c < 0x80) {
        utf8 += static_cast<char>(c);
        return;
    }
    if (c < 0x800)
        utf8 += static_cast<char>(0xC0 | (c >> 6));
    else
        (utf8 += static_cast<char>(0xE0 | (c >> 12))) += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (c & 0x3F));
}

std::string toUtf8(std::u16string_view text)
{
    std::string utf8;
    for (char16_t c : text)
        appendUtf8(utf8, c);
    return utf8;
}

/// Where digits and ideographs follow each other Pango moves one font against the other, by a pixel here: every look
/// has one base line.
PangoLayoutLine* onOneBaseLine(PangoLayoutLine* line)
{
    for (GSList* run = line->runs; run != nullptr; run = run->next)
        static_cast<PangoLayoutRun*>(run->data)->y_offset = 0;
    return line;
}

/// Without any font a text is a row of boxes: something is there, and how long it is.
TextMask boxes(std::size_t count, int width)
{
    constexpr int STEP = 7, SIDE = 5, TOP = TextMask::ASCENT - 9, BOTTOM = TextMask::ASCENT;
    TextMask mask;
    mask.width = std::min(width, static_cast<int>(count) * STEP);
    mask.cut = static_cast<int>(count) * STEP > width;
    mask.lacksGlyph = true;
    mask.ink.resize(static_cast<std::size_t>(mask.width * TextMask::HEIGHT));
    for (int y = TOP; y < BOTTOM; ++y) {
        for (int x = 0; x < mask.width; ++x) {
            const int column = x % STEP;
            const bool edge = y == TOP || y == BOTTOM - 1 || column == 0 || column == SIDE - 1;
            mask.ink[static_cast<std::size_t>(y * mask.width + x)] = column < SIDE && edge ? 1 : 0;
        }
    }
    return mask;
}

} // namespace

/// Where texts are drawn before they are copied out; grows with the widest.
struct TextRenderer::Canvas {
    explicit Canvas(int canvasWidth)
        : width(canvasWidth), surface(cairo_image_surface_create(CAIRO_FORMAT_A8, width, TextMask::HEIGHT)),
          context(cairo_create(surface))
    {
    }

    ~Canvas()
    {
        cairo_destroy(context);
        cairo_surface_destroy(surface);
    }

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Draws what lies in the first `columns` pixels; what is to the right of them is undefined.
    void draw(PangoLayoutLine* line, int columns) const;
    void copyTo(TextMask& mask) const;

    int width;
    cairo_surface_t* surface;
    cairo_t* context;
};

void TextRenderer::Canvas::draw(PangoLayoutLine* line, int columns) const
{
    cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
    cairo_rectangle(context, 0, 0, columns, TextMask::HEIGHT);
    cairo_fill(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
    cairo_move_to(context, 0, TextMask::ASCENT);
    pango_cairo_show_layout_line(context, line);
}

void TextRenderer::Canvas::copyTo(TextMask& mask) const
{
    cairo_surface_flush(surface);
    const unsigned char* pixels = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    mask.ink.resize(static_cast<std::size_t>(mask.width * TextMask::HEIGHT));
    auto* out = mask.ink.data();
    for (int y = 0; y < TextMask::HEIGHT; ++y) {
        for (int x = 0; x < mask.width; ++x)
            *out++ = pixels[y * stride + x] >> 7;
    }
}

TextRenderer::TextRenderer(std::vector<std::string> fontFolders) : mFonts(std::move(fontFolders)) {}

TextRenderer::~TextRenderer() = default;

std::size_t TextRenderer::KeyHash::operator()(const Key& key) const noexcept
{
    const auto seed = static_cast<std::size_t>(key.width) * 2 + static_cast<std::size_t>(key.font);
    return std::hash<std::u16string>()(key.text) ^ (seed * 0x9E3779B97F4A7C15U);
}

const TextMask& TextRenderer::mask(Font font, const PegString& text, int width)
{
    Key key{font, std::max(width, 0), visiblePart(text, std::max(width, 0))};
    const auto [entry, isNew] = mEntries.try_emplace(std::move(key));
    if (isNew) {
        entry->second = {render(entry->first), mUses.insert(mUses.begin(), &entry->first)};
        mBytes += entry->second.mask.ink.size();
        while (isFull())
            forgetOldest();
    } else {
        mUses.splice(mUses.begin(), mUses, entry->second.use);
    }
    return entry->second.mask;
}

/// Never of the one just made: the caller is about to use it.
bool TextRenderer::isFull() const
{
    return mEntries.size() > MAX_ENTRIES || (mBytes > MAX_BYTES && mEntries.size() > 1);
}

void TextRenderer::forgetOldest()
{
    const auto oldest = mEntries.find(*mUses.back());
    mUses.pop_back();
    mBytes -= oldest->second.mask.ink.size();
    mEntries.erase(oldest);
}

TextMask TextRenderer::render(const Key& key)
{
    if (key.text.empty() || key.width == 0)
        return {.cut = !key.text.empty(), .ink = {}};
    std::u16string text = key.text;
    PangoLayout* layout = mFonts.layoutFor(key.font, text);
    if (layout == nullptr)
        return boxes(text.size(), key.width);
    const PangoThreads threads;
    const std::string utf8 = toUtf8(text);
    pango_layout_set_width(layout, key.width * PANGO_SCALE);
    pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
    PangoLayoutLine* const line = onOneBaseLine(pango_layout_get_line(layout, 0));
    PangoRectangle extents;
    pango_layout_line_get_pixel_extents(line, nullptr, &extents);
    TextMask mask{.width = std::clamp(extents.width, 0, key.width),
                  .cut = pango_layout_is_ellipsized(layout) == TRUE,
                  .rightToLeft = pango_layout_line_get_resolved_direction(line) == PANGO_DIRECTION_RTL,
                  .lacksGlyph = text.find(REPLACEMENT) != std::u16string::npos,
                  .ink = {}};
    if (!mCanvas || mCanvas->width < mask.width)
        mCanvas = std::make_unique<Canvas>(mask.width);
    mCanvas->draw(line, mask.width);
    mCanvas->copyTo(mask);
    return mask;
}

} // namespace host
