#include "host/lcd/PictureFile.h"

#include "host/lcd/Drawing.h"
#include "utilities/Logging.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

namespace host {

namespace {

constexpr int REFUSED = 3; ///< the log's level
constexpr int GREYS = 3;   ///< steps between bare and dark
constexpr int WHITE = 255;

/// Only of files proper: a pipe would wait for its writer.
std::optional<std::string> bytesOf(const std::string& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {};
    const auto size = std::filesystem::file_size(path, error);
    if (error || size > MOST_PICTURE_BYTES)
        return {};
    std::string bytes(size, '\0');
    if (!std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(size)))
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

/// Empty where the file has no picture.
ColourPicture colours(const std::string& path, int width, int height)
{
    const auto bytes = bytesOf(path);
    return bytes && !isTooLarge(*bytes) ? drawing().decode(*bytes, width, height) : ColourPicture{};
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
    const ColourPicture file = colours(path, width, height);
    if (file.pixels.empty()) {
        if (loggingOnUni())
            logAppUni("host::PictureFile", "host/lcd/PictureFile", REFUSED, __LINE__, "no picture can be read from %s",
                      path.c_str());
        return {};
    }
    Picture picture{.width = file.width, .height = file.height};
    Dither dither(file.width);
    for (int y = 0; y < file.height; ++y)
        dither.row(&file.pixels[static_cast<std::size_t>(y * file.width)], picture);
    return picture;
}

} // namespace host
