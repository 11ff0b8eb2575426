#include "host/drawing/PangoShaper.h"

#include "host/drawing/LineEdges.h"
#include "host/drawing/PangoThreads.h"
#include "host/drawing/Surface.h"
#include "host/lcd/Utf8.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <pango/pangocairo.h>

namespace host {

namespace {

/// Where digits and ideographs follow each other Pango moves one font against the other, by a pixel here: every look
/// has one base line.
PangoLayoutLine* onOneBaseLine(PangoLayoutLine* line)
{
    for (GSList* run = line->runs; run != nullptr; run = run->next)
        static_cast<PangoLayoutRun*>(run->data)->y_offset = 0;
    return line;
}

/// The highest bits of eight bytes side by side, that of the first one the lowest.
TextMask::Word eightPixels(const unsigned char* pixels)
{
    static_assert(std::endian::native == std::endian::little, "the first pixel is the lowest byte");
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, pixels, sizeof bytes);
    return ((bytes >> 7 & 0x0101010101010101) * 0x0102040810204080) >> 56;
}

} // namespace

/// Where texts are drawn before they are copied out; grows with the widest.
struct PangoShaper::Canvas {
    explicit Canvas(int canvasWidth)
        : width(canvasWidth), surface(cairo_image_surface_create(CAIRO_FORMAT_A8, width, TextMask::HEIGHT)),
          drawing(cairo_create(surface.get()))
    {
    }

    /// Draws what lies in the first `columns` pixels; what is to the right of them is undefined.
    void draw(PangoLayoutLine* line, int columns) const;
    void copyTo(TextMask& mask) const;

    int width;
    Surface surface;
    Context drawing;
};

void PangoShaper::Canvas::draw(PangoLayoutLine* line, int columns) const
{
    cairo_t* const context = drawing.get();
    cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
    cairo_rectangle(context, 0, 0, columns, TextMask::HEIGHT);
    cairo_fill(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
    cairo_move_to(context, 0, TextMask::ASCENT);
    pango_cairo_show_layout_line(context, line);
}

void PangoShaper::Canvas::copyTo(TextMask& mask) const
{
    cairo_surface_flush(surface.get());
    const unsigned char* pixels = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    mask.clear();
    for (int y = 0; y < TextMask::HEIGHT; ++y, pixels += stride) {
        const auto row = mask.row(y);
        int x = 0;
        for (; x + 8 <= mask.width; x += 8)
            row[static_cast<std::size_t>(x / TextMask::WORD_BITS)] |= eightPixels(pixels + x)
                                                                      << (x % TextMask::WORD_BITS);
        for (; x < mask.width; ++x)
            if (pixels[x] >> 7 != 0)
                mask.putInk(x, y);
    }
}

PangoShaper::PangoShaper(std::vector<std::string> folders) : mFonts(std::move(folders)) {}

PangoShaper::~PangoShaper() = default;

const PangoShaper::Laid& PangoShaper::lay(Font font, const std::u16string& text, int width)
{
    if (mLaid.layout != nullptr && mLaid.font == font && mLaid.width == width && mLaid.text == text)
        return mLaid;
    mLaid = {.font = font, .width = width, .text = text, .shown = text};
    mLaid.layout = mFonts.layoutFor(font, mLaid.shown);
    if (mLaid.layout == nullptr)
        return mLaid;
    const PangoThreads threads;
    const std::string utf8 = toUtf8(mLaid.shown);
    pango_layout_set_width(mLaid.layout, width * PANGO_SCALE);
    pango_layout_set_text(mLaid.layout, utf8.data(), static_cast<int>(utf8.size()));
    mLaid.line = onOneBaseLine(pango_layout_get_line(mLaid.layout, 0));
    return mLaid;
}

std::optional<TextMask> PangoShaper::draw(Font font, const std::u16string& text, int width)
{
    const Laid& laid = lay(font, text, width);
    if (laid.line == nullptr)
        return {};
    const PangoThreads threads;
    PangoRectangle extents;
    pango_layout_line_get_pixel_extents(laid.line, nullptr, &extents);
    TextMask mask{.width = std::clamp(extents.width, 0, width),
                  .cut = pango_layout_is_ellipsized(laid.layout) == TRUE,
                  .rightToLeft = pango_layout_line_get_resolved_direction(laid.line) == PANGO_DIRECTION_RTL,
                  .lacksGlyph = laid.shown.find(REPLACEMENT) != std::u16string::npos,
                  .ink = {}};
    if (!mCanvas || mCanvas->width < mask.width)
        mCanvas = std::make_unique<Canvas>(mask.width);
    mCanvas->draw(laid.line, mask.width);
    mCanvas->copyTo(mask);
    return mask;
}

std::optional<std::vector<TextEdges>> PangoShaper::edges(Font font, const std::u16string& text, int width)
{
    const Laid& laid = lay(font, text, width);
    if (laid.line == nullptr)
        return {};
    return edgesOf(laid.line, laid.shown);
}

} // namespace host
