#include "simulator/screen/ScreenJson.h"

#include "host/lcd/Geometry.h"
#include "simulator/screen/ScreenRows.h"
#include "simulator/screen/WidgetNames.h"

#include <nlohmann/json.hpp>

namespace simulator {

namespace {

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

Json toJson(const ScreenRow& row)
{
    return {{"text", row.text}, {"selected", row.selected}, {"lasting", row.lasting}};
}

template <typename Each>
Json listOf(const std::vector<Each>& all)
{
    Json list = Json::array();
    for (const Each& each : all)
        list.push_back(toJson(each));
    return list;
}

} // namespace

Json screenForm(const host::Picture& picture, std::string_view variant)
{
    return {{"version", SCREEN_FORM_VERSION},
            {"panel", panelJson(picture, variant)},
            {"focus", host::isEmpty(picture.focus) ? Json() : toJson(picture.focus)},
            {"rows", listOf(rowsOf(picture.texts))},
            {"texts", listOf(picture.texts)}};
}

Json panelJson(const host::Picture& picture, std::string_view variant)
{
    return {{"variant", variant}, {"width", picture.width}, {"height", picture.height}};
}

std::string screenJson(const host::Picture& picture, std::string_view variant)
{
    constexpr int INDENT = 2;
    return screenForm(picture, variant).dump(INDENT, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace simulator
