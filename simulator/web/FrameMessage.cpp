#include "simulator/web/FrameMessage.h"

#include "simulator/screen/ScreenRows.h"
#include "simulator/web/ServerMessages.h"

namespace simulator {

namespace {

constexpr int PIXELS_IN_A_BYTE = 4;

void appendNumber(std::string& message, std::uint32_t number, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        message.push_back(static_cast<char>(number >> (8 * i)));
}

void appendRow(std::string& message, const std::uint8_t* pixels, int width)
{
    for (int x = 0; x < width; x += PIXELS_IN_A_BYTE) {
        unsigned int byte = 0;
        for (int i = 0; i < PIXELS_IN_A_BYTE; ++i)
            byte = byte << 2 | (x + i < width ? pixels[x + i] & 3U : 0U);
        message.push_back(static_cast<char>(byte));
    }
}

std::string packed(const host::Picture& picture, std::uint32_t number)
{
    std::string message;
    message.reserve(8 + picture.pixels.size() / PIXELS_IN_A_BYTE);
    appendNumber(message, static_cast<std::uint32_t>(picture.width), 2);
    appendNumber(message, static_cast<std::uint32_t>(picture.height), 2);
    appendNumber(message, number, 4);
    for (int y = 0; y < picture.height; ++y)
        appendRow(message, picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width, picture.width);
    return message;
}

} // namespace

FrameMessage makeFrameMessage(const host::Picture& picture, std::uint32_t number, std::string_view language)
{
    return {number, packed(picture, number), rowsMessage(rowsOf(picture.texts), language)};
}

} // namespace simulator
