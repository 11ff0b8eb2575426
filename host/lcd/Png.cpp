#include "host/lcd/Png.h"

#include "host/lcd/Drawing.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <limits>

namespace host {

namespace {

/// By grey level.
constexpr std::array<std::uint32_t, 4> COLOURS{0xFFFFFF, 0xAAAAAA, 0x555555, 0x000000};

std::uint8_t pixelOf(const Picture& picture, int x, int y)
{
    return picture.pixels[static_cast<std::size_t>(y * picture.width + x)];
}

ColourPicture coloured(const Picture& picture, int scale)
{
    ColourPicture colours{.width = picture.width * scale, .height = picture.height * scale};
    for (int y = 0; y < colours.height; ++y)
        for (int x = 0; x < colours.width; ++x)
            colours.pixels.push_back(COLOURS[pixelOf(picture, x / scale, y / scale) & 3]);
    return colours;
}

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::string writePng(const Picture& picture, const std::string& path, int scale)
{
    return drawing().write(coloured(picture, std::max(scale, 1)), path);
}

std::string pngOf(const Picture& picture, int scale)
{
    return drawing().encode(coloured(picture, std::max(scale, 1)));
}

std::optional<Picture> readPng(const std::string& path)
{
    constexpr int ANY = std::numeric_limits<int>::max();
    const ColourPicture colours = drawing().decode(contentOf(path), ANY, ANY);
    if (colours.pixels.empty())
        return {};
    Picture picture{.width = colours.width, .height = colours.height};
    for (const std::uint32_t pixel : colours.pixels) {
        const auto* colour = std::find(COLOURS.begin(), COLOURS.end(), pixel);
        if (colour == COLOURS.end())
            return {};
        picture.pixels.push_back(static_cast<std::uint8_t>(colour - COLOURS.begin()));
    }
    return picture;
}

} // namespace host
