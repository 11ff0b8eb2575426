#include "simulator/screen/ScreenJson.h"

#include "toolkit/PegThing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::screenJson;
using testing::HasSubstr;

host::Picture panel(std::vector<host::TextRun> texts = {})
{
    return {208, 42, std::vector<std::uint8_t>(208 * 42), std::move(texts)};
}

TEST(ScreenJson, EmptyPanel)
{
    EXPECT_EQ(screenJson(panel(), "wp1"), R"({
  "version": 1,
  "panel": {
    "variant": "wp1",
    "width": 208,
    "height": 42
  },
  "focus": null,
  "rows": [],
  "texts": []
}
)");
}

TEST(ScreenJson, TextHasAllThatIsKnownOfIt)
{
    host::TextRun run{{1, 2, 30, 14}, "Zo\u00EB \"\u6771\"", true, true, true, true, TYPE_SYSTEM_WINDOW};
    EXPECT_THAT(screenJson(panel({run}), "wp1"), HasSubstr(R"(
    {
      "text": "Zoë \"東\"",
      "rect": {
        "left": 1,
        "top": 2,
        "right": 30,
        "bottom": 14
      },
      "selected": true,
      "cut": true,
      "lacksGlyph": true,
      "volatile": true,
      "widget": "systemWindow"
    }
)"));
}

TEST(ScreenJson, RowsAreAsOneReadsThem)
{
    host::TextRun clock{{100, 0, 140, 12}, "09:41"};
    clock.runs = true;
    EXPECT_THAT(screenJson(panel({{{0, 0, 50, 12}, "Line 1"}, clock, {{0, 14, 50, 26}, "Ada", true}}), "wp1"),
                HasSubstr(R"(
  "rows": [
    {
      "text": "Line 1  09:41",
      "selected": false,
      "lasting": "Line 1"
    },
    {
      "text": "Ada",
      "selected": true,
      "lasting": "Ada"
    }
  ],
)"));
}

TEST(ScreenJson, FocusIsARectangle)
{
    host::Picture picture = panel();
    picture.focus = {0, 13, 207, 41};
    EXPECT_THAT(screenJson(picture, "wp1"), HasSubstr(R"(
  "focus": {
    "left": 0,
    "top": 13,
    "right": 207,
    "bottom": 41
  },
)"));
}

TEST(ScreenJson, WidgetsHaveNames)
{
    const std::pair<int, const char*> names[] = {{TYPE_LIST_WITH_TITLE, "list"},
                                                 {TYPE_LIST_WP1, "list"},
                                                 {TYPE_SYSTEM_WINDOW, "systemWindow"},
                                                 {TYPE_STATUS_MESSAGE, "statusMessage"},
                                                 {TYPE_TICKER, "ticker"},
                                                 {TYPE_WINDOW, "window"},
                                                 {TYPE_THING, "other"},
                                                 {99, "other"}};
    for (const auto& [type, name] : names) {
        host::TextRun run{{0, 0, 1, 1}, "a"};
        run.widget = static_cast<std::uint8_t>(type);
        EXPECT_THAT(screenJson(panel({run}), "plain"), HasSubstr(std::string("\"widget\": \"") + name + '"'));
    }
}

TEST(ScreenJson, TextThatIsNoUtf8IsReplaced)
{
    EXPECT_THAT(screenJson(panel({{{0, 0, 1, 1}, "a\xC3(\xFF"}}), "plain"), HasSubstr("\"a\uFFFD(\uFFFD\""));
    EXPECT_THAT(screenJson(panel({{{0, 0, 1, 1}, std::string("\0\x1F\n", 3)}}), "plain"),
                HasSubstr(R"("\u0000\u001f\n")"));
}

} // namespace
