#include "host/drawing/TextReader.h"

#include "host/lcd/Utf8.h"

#include <memory>
#include <pango/pango.h>

namespace host {

namespace {

void readLevels(const std::string& utf8, TextReading& reading)
{
    PangoDirection base = PANGO_DIRECTION_WEAK_LTR;
    const std::unique_ptr<std::uint8_t, decltype(&g_free)> levels(
        pango_log2vis_get_embedding_levels(utf8.data(), static_cast<int>(utf8.size()), &base), g_free);
    reading.fromTheRight = base == PANGO_DIRECTION_RTL || base == PANGO_DIRECTION_WEAK_RTL;
    reading.levels.assign(levels.get(), levels.get() + reading.levels.size());
}

void readBegins(const std::string& utf8, TextReading& reading)
{
    std::vector<PangoLogAttr> breaks(reading.begins.size() + 1);
    pango_get_log_attrs(utf8.data(), static_cast<int>(utf8.size()), -1, pango_language_from_string("und"),
                        breaks.data(), static_cast<int>(breaks.size()));
    for (std::size_t at = 0; at < reading.begins.size(); ++at)
        reading.begins[at] = breaks[at].is_cursor_position != 0;
}

} // namespace

TextReading readText(const std::u16string& text)
{
    TextReading reading{.levels = std::vector<std::uint8_t>(text.size()), .begins = std::vector<bool>(text.size())};
    const std::string utf8 = toUtf8(text);
    readLevels(utf8, reading);
    readBegins(utf8, reading);
    return reading;
}

} // namespace host
