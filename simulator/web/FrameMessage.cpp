#include "simulator/web/FrameMessage.h"

#include "simulator/screen/ScreenRows.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <cstdio>

namespace simulator {

namespace {

constexpr int PIXELS_IN_A_BYTE = 4;

/// More of a row than anybody wants to hear.
constexpr std::size_t LONGEST_TEXT = 400;

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

/// As a JSON string in ASCII, whatever the text is made of.
std::string quoted(const std::string& text)
{
    const PegString characters = ICC::fromUTF8toUNICODE(text);
    const std::size_t length = std::min(characters.length(), LONGEST_TEXT);
    std::string json = "\"";
    for (std::size_t i = 0; i < length; ++i) {
        const PegChar c = characters.data()[i];
        const bool isPlain = c >= ' ' && c < 0x7F && c != '"' && c != '\\';
        char escape[8] = {static_cast<char>(c), '\0'};
        if (!isPlain)
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned int>(c));
        json += escape;
    }
    return json + '"';
}

std::string toJson(const std::vector<ScreenRow>& rows)
{
    std::string json = R"({"rows":[)";
    for (const ScreenRow& row : rows) {
        json += json.back() == '[' ? "" : ",";
        json += R"({"text":)" + quoted(row.text) + R"(,"selected":)" + (row.selected ? "true" : "false") + '}';
    }
    return json + "]}";
}

} // namespace

FrameMessage makeFrameMessage(const host::Picture& picture, std::uint32_t number)
{
    return {number, packed(picture, number), toJson(rowsOf(picture.texts))};
}

} // namespace simulator
