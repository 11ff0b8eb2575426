#include "simulator/screen/ScreenJson.h"

#include "host/lcd/Geometry.h"
#include "simulator/screen/WidgetNames.h"

#include <nlohmann/json.hpp>

namespace simulator {

namespace {

/// Keeps its members in the order in which they are written down here.
using Json = nlohmann::ordered_json;

Json toJson(const PegRect& rect)
{
    return {{"left", rect.left}, {"top", rect.top}, {"right", rect.right}, {"bottom", rect.bottom}};
}

Json toJson(const host::TextRun& run)
{
    return {{"text", run.text},
            {"rect", toJson(run.area)},
            {"selected", run.inverted},
            {"cut", run.cut},
            {"lacksGlyph", run.lacksGlyph},
            {"volatile", run.runs},
            {"widget", widgetName(run.widget)}};
}

Json toJson(const std::vector<host::TextRun>& texts)
{
    Json all = Json::array();
    for (const host::TextRun& run : texts)
        all.push_back(toJson(run));
    return all;
}

} // namespace

std::string screenJson(const host::Picture& picture, std::string_view variant)
{
    constexpr int INDENT = 2;
    const Json panel = {{"variant", variant}, {"width", picture.width}, {"height", picture.height}};
    const Json focus = host::isEmpty(picture.focus) ? Json() : toJson(picture.focus);
    const Json screen = {{"panel", panel}, {"focus", focus}, {"texts", toJson(picture.texts)}};
    return screen.dump(INDENT, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace simulator
