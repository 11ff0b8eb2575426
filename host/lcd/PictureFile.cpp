#include "host/lcd/PictureFile.h"

#include "host/lcd/Surface.h"
#include "utilities/Logging.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

namespace host {

namespace {

constexpr int REFUSED = 3; ///< the log's level
constexpr int GREYS = 3;   ///< steps between bare and dark
constexpr int WHITE = 255;

/// A file's bytes, on their way to the decoder.
struct Bytes {
    std::string data;
    std::size_t read = 0;
};

struct Size {
    int width;
    int height;
};

/// Only of files proper: a pipe would wait for its writer.
std::optional<Bytes> bytesOf(const std::string& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {};
    const auto size = std::filesystem::file_size(path, error);
    if (error || size > MOST_PICTURE_BYTES)
        return {};
    Bytes bytes{.data = std::string(size, '\0')};
    if (!std::ifstream(path, std::ios::binary).read(bytes.data.data(), static_cast<std::streamsize>(size)))
        return {};
    return bytes;
}

std::uint32_t numberAt(const std::string& data, std::size_t place)
{
    std::uint32_t number = 0;
    for (std::size_t i = place; i < place + 4; ++i)
        number = number << 8 | static_cast<unsigned char>(data[i]);
    return number;
}

/// Before there is memory for it: a few bytes can claim any size. They follow the signature and their chunk's name.
bool isTooLarge(const std::string& data)
{
    constexpr std::size_t WIDTH = 16, HEIGHT = 20, END = 24;
    return data.size() < END ||
           std::uint64_t{numberAt(data, WIDTH)} * numberAt(data, HEIGHT) > std::uint64_t{MOST_PICTURE_PIXELS};
}

cairo_status_t readOn(void* source, unsigned char* to, unsigned int length)
{
    auto& bytes = *static_cast<Bytes*>(source);
    if (bytes.data.size() - bytes.read < length)
        return CAIRO_STATUS_READ_ERROR;
    std::memcpy(to, bytes.data.data() + bytes.read, length);
    bytes.read += length;
    return CAIRO_STATUS_SUCCESS;
}

std::optional<Surface> decoded(const std::string& path)
{
    auto bytes = bytesOf(path);
    if (!bytes || isTooLarge(bytes->data))
        return {};
    Surface surface(cairo_image_surface_create_from_png_stream(readOn, &*bytes));
    if (!isFine(surface))
        return {};
    return surface;
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
    cairo_t* const drawing = cairo_create(paper.get());
    cairo_set_source_rgb(drawing, 1, 1, 1);
    cairo_paint(drawing);
    cairo_scale(drawing, static_cast<double>(size.width) / whole.width,
                static_cast<double>(size.height) / whole.height);
    cairo_set_source_surface(drawing, picture.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(drawing), CAIRO_EXTEND_PAD);
    cairo_paint(drawing);
    cairo_destroy(drawing);
    cairo_surface_flush(paper.get());
    return paper;
}

/// How light the eye finds it, 0 to 255.
int brightness(std::uint32_t colour)
{
    const auto part = [=](int shift) { return static_cast<int>(colour >> shift & 0xFF); };
    return (299 * part(16) + 587 * part(8) + 114 * part(0) + 500) / 1000;
}

/// Gives each pixel the nearest level, and what is wrong with it to the neighbours that follow, as Floyd and Steinberg
/// do. Sixteenths of a brightness; a place is free before the row and behind it.
class Dither {
public:
    explicit Dither(int width) : mRow(static_cast<std::size_t>(width) + 2), mNext(mRow) {}

    void row(const std::uint32_t* colours, Picture& picture)
    {
        for (std::size_t x = 0; x + 2 < mRow.size(); ++x)
            picture.pixels.push_back(pixel(brightness(colours[x]), x + 1));
        mRow.swap(mNext);
        std::ranges::fill(mNext, 0);
    }

private:
    std::uint8_t pixel(int wanted, std::size_t place)
    {
        const int bright = std::clamp(wanted + mRow[place] / 16, 0, WHITE);
        const int step = (bright * GREYS + WHITE / 2) / WHITE;
        const int wrong = bright - step * WHITE / GREYS;
        mRow[place + 1] += wrong * 7;
        mNext[place - 1] += wrong * 3;
        mNext[place] += wrong * 5;
        mNext[place + 1] += wrong;
        return static_cast<std::uint8_t>(GREYS - step);
    }

    std::vector<int> mRow;
    std::vector<int> mNext;
};

} // namespace

Picture readPicture(const std::string& path, int width, int height)
{
    if (path.empty() || width <= 0 || height <= 0)
        return {};
    const auto file = decoded(path);
    if (!file) {
        if (loggingOnUni())
            logAppUni("host::PictureFile", "host/lcd/PictureFile", REFUSED, __LINE__, "no picture can be read from %s",
                      path.c_str());
        return {};
    }
    const Size size = fitting(sizeOf(*file), {width, height});
    const Surface paper = onPaper(*file, size);
    Picture picture{.width = size.width, .height = size.height};
    Dither dither(size.width);
    for (int y = 0; y < size.height; ++y)
        dither.row(rowOf(paper, y), picture);
    return picture;
}

} // namespace host
