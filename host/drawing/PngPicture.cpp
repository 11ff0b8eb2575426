#include "host/drawing/PngPicture.h"

#include "host/drawing/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

namespace host {

namespace {

struct Size {
    int width;
    int height;
};

/// Takes from the front of what is left of the file's bytes.
cairo_status_t readOn(void* source, unsigned char* to, unsigned int length)
{
    auto& rest = *static_cast<std::string_view*>(source);
    if (rest.size() < length)
        return CAIRO_STATUS_READ_ERROR;
    std::memcpy(to, rest.data(), length);
    rest.remove_prefix(length);
    return CAIRO_STATUS_SUCCESS;
}

Size fitting(const Size& picture, const Size& most)
{
    const double scale = std::min(
        {1.0, static_cast<double>(most.width) / picture.width, static_cast<double>(most.height) / picture.height});
    const auto scaled = [=](int length) { return std::max(1, static_cast<int>(std::lround(length * scale))); };
    return {scaled(picture.width), scaled(picture.height)};
}

Size sizeOf(const Surface& surface)
{
    return {cairo_image_surface_get_width(surface.get()), cairo_image_surface_get_height(surface.get())};
}

/// Scaled to `size`, on white.
Surface onPaper(const Surface& picture, const Size& size)
{
    const Size whole = sizeOf(picture);
    Surface paper(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height));
    const Context owned(cairo_create(paper.get()));
    cairo_t* const drawing = owned.get();
    cairo_set_source_rgb(drawing, 1, 1, 1);
    cairo_paint(drawing);
    cairo_scale(drawing, static_cast<double>(size.width) / whole.width,
                static_cast<double>(size.height) / whole.height);
    cairo_set_source_surface(drawing, picture.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(drawing), CAIRO_EXTEND_PAD);
    cairo_paint(drawing);
    cairo_surface_flush(paper.get());
    return paper;
}

Surface surfaceOf(const ColourPicture& picture)
{
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, picture.width, picture.height));
    for (int y = 0; isFine(surface) && y < picture.height; ++y)
        std::copy_n(picture.pixels.data() + y * picture.width, picture.width, rowOf(surface, y));
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int size)
{
    static_cast<std::string*>(bytes)->append(data, data + size);
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

ColourPicture decodePng(const std::string& png, int mostWidth, int mostHeight)
{
    std::string_view rest = png;
    const Surface surface(cairo_image_surface_create_from_png_stream(readOn, &rest));
    if (!isFine(surface))
        return {};
    const Size size = fitting(sizeOf(surface), {mostWidth, mostHeight});
    const Surface paper = onPaper(surface, size);
    ColourPicture picture{.width = size.width, .height = size.height};
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            picture.pixels.push_back(rowOf(paper, y)[x] & 0xFFFFFF);
    return picture;
}

std::string writePngFile(const ColourPicture& picture, const std::string& path)
{
    const Surface surface = surfaceOf(picture);
    const cairo_status_t status = cairo_surface_write_to_png(surface.get(), path.c_str());
    if (status == CAIRO_STATUS_SUCCESS)
        return {};
    return "cannot write " + path + ": " + cairo_status_to_string(status);
}

std::string pngBytes(const ColourPicture& picture)
{
    const Surface surface = surfaceOf(picture);
    std::string bytes;
    const cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), append, &bytes);
    return status == CAIRO_STATUS_SUCCESS ? bytes : std::string();
}

} // namespace host
