#include "host/lcd/Png.h"

#include "host/lcd/Surface.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

/// By grey level.
constexpr std::array<std::uint32_t, 4> COLOURS{0xFFFFFF, 0xAAAAAA, 0x555555, 0x000000};

std::uint8_t pixelOf(const Picture& picture, int x, int y)
{
    return picture.pixels[static_cast<std::size_t>(y * picture.width + x)];
}

Surface draw(const Picture& picture, int scale)
{
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, picture.width * scale, picture.height * scale));
    if (!isFine(surface))
        return surface;
    for (int y = 0; y < picture.height * scale; ++y) {
        for (int x = 0; x < picture.width * scale; ++x)
            rowOf(surface, y)[x] = COLOURS[pixelOf(picture, x / scale, y / scale) & 3];
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

} // namespace

std::string writePng(const Picture& picture, const std::string& path, int scale)
{
    const Surface surface = draw(picture, std::max(scale, 1));
    const cairo_status_t status = cairo_surface_write_to_png(surface.get(), path.c_str());
    if (status == CAIRO_STATUS_SUCCESS)
        return {};
    return "cannot write " + path + ": " + cairo_status_to_string(status);
}

std::optional<Picture> readPng(const std::string& path)
{
    const Surface surface(cairo_image_surface_create_from_png(path.c_str()));
    if (!isFine(surface))
        return {};
    Picture picture;
    picture.width = cairo_image_surface_get_width(surface.get());
    picture.height = cairo_image_surface_get_height(surface.get());
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const auto* colour = std::find(COLOURS.begin(), COLOURS.end(), rowOf(surface, y)[x] & 0xFFFFFF);
            if (colour == COLOURS.end())
                return {};
            picture.pixels.push_back(static_cast<std::uint8_t>(colour - COLOURS.begin()));
        }
    }
    return picture;
}

} // namespace host
