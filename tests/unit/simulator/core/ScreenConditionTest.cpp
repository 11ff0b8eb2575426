#include "simulator/core/ScreenCondition.h"

#include "toolkit/PegThing.h"

#include <gmock/gmock.h>

namespace {

using simulator::Screen;
using simulator::ScreenCondition;
using testing::HasSubstr;
using What = ScreenCondition::What;
using Match = ScreenCondition::Match;

/// "Line 1  09:41" with a clock, then two rows, the second of two texts and selected.
Screen screen()
{
    Screen screen;
    screen.words.displayables = "object:\nname:List\nstring0:Ada\nend:\n";
    screen.picture.texts = {{{0, 0, 50, 12}, "Line 1"},
                            {{100, 0, 140, 12}, "09:41"},
                            {{0, 14, 50, 26}, "Ada"},
                            {{0, 28, 50, 40}, "Zoë", true},
                            {{60, 28, 99, 40}, "4711", true}};
    screen.picture.texts[1].runs = true;
    for (auto& run : screen.picture.texts)
        run.widget = TYPE_LIST_WITH_TITLE;
    return screen;
}

/// With another time than it shows.
const std::string SCREEN = "object:\nname:List\nstring0:Ada\nend:\nobject:\nname:RunningTexts\nvolatile:10:00\nend:\n";

const std::string SHOWN = "object:\nname:List\nstring0:Ada\nend:\nobject:\nname:RunningTexts\nvolatile:09:41\nend:\n";

TEST(ScreenCondition, EachHoldsOrNot)
{
    struct Case {
        ScreenCondition condition;
        bool holds;
    };
    const Case cases[] = {
        {{What::TEXT, Match::EQUAL, "Ada"}, true},
        {{What::TEXT, Match::EQUAL, "Ad"}, false},
        {{What::TEXT, Match::EQUAL, "Zoë  4711"}, true},
        {{What::TEXT, Match::EQUAL, "4711"}, true},
        {{What::TEXT, Match::CONTAINS, "Ad"}, true},
        {{What::TEXT, Match::REGEX, "^Zo.  \\d+$"}, true},
        {{What::TEXT, Match::REGEX, "^ZO"}, false},
        {{What::NO_TEXT, Match::EQUAL, "Ad"}, true},
        {{What::NO_TEXT, Match::CONTAINS, "Ad"}, false},
        {{What::SELECTED, Match::EQUAL, "Zoë"}, true},
        {{What::SELECTED, Match::EQUAL, "Ada"}, false},
        {{What::TEXT, Match::EQUAL, "09:41"}, false},
        {{What::TEXT, Match::EQUAL, "09:41", {}, true}, true},
        {{What::TEXT, Match::EQUAL, "Line 1"}, true},
        {{What::SCREEN, Match::EQUAL, SCREEN}, true},
        {{What::SCREEN, Match::EQUAL, "object:\nname:List\nstring0:Ada\nend:\n"}, false},
        {{What::SCREEN, Match::EQUAL, SCREEN, {}, true}, false},
        {{What::SCREEN, Match::EQUAL, SHOWN, {}, true}, true},
        {{What::SCREEN, Match::CONTAINS, "string0:Ada\n"}, true},
        {{What::SCREEN, Match::CONTAINS, "09:41"}, false},
        {{What::SCREEN, Match::CONTAINS, "09:41", {}, true}, true},
        {{What::SCREEN, Match::REGEX, "name:List\\nstring0:A"}, true},
        {{What::ROWS, Match::EQUAL, "", {"Line 1", "Ada", "Zoë  4711"}}, true},
        {{What::ROWS, Match::EQUAL, "", {"Line 1", "Ada"}}, false},
        {{What::ROWS, Match::EQUAL, "", {"Line 1  09:41", "Ada", "Zoë  4711"}, true}, true},
    };
    for (const Case& each : cases)
        EXPECT_EQ(each.condition.holdsFor(screen()), each.holds) << each.condition.differenceOf(screen());
}

TEST(ScreenCondition, DifferenceIsForPeople)
{
    EXPECT_EQ(ScreenCondition({What::TEXT, Match::EQUAL, "Bob"}).differenceOf(screen()),
              "there is no 'Bob'\nthe screen shows:\n  Line 1  09:41\n  Ada\n> Zoë  4711\n");
    EXPECT_THAT(ScreenCondition({What::NO_TEXT, Match::EQUAL, "Ada"}).differenceOf(screen()),
                HasSubstr("there is 'Ada'"));
    EXPECT_THAT(ScreenCondition({What::SELECTED, Match::EQUAL, "Ada"}).differenceOf(screen()),
                HasSubstr("no selected row is 'Ada'"));
    EXPECT_EQ(ScreenCondition({What::ROWS, Match::EQUAL, "", {"Line 1", "Bob", "Zoë  4711"}}).differenceOf(screen()),
              "- Bob\n+ Ada\n");
    EXPECT_THAT(ScreenCondition({What::SCREEN, Match::CONTAINS, "Bob"}).differenceOf(screen()),
                HasSubstr("string0:Ada"));
}

TEST(ScreenCondition, OnlyRegularExpressionsCanBeWrong)
{
    EXPECT_EQ(ScreenCondition({What::TEXT, Match::CONTAINS, "("}).error(), "");
    EXPECT_NE(ScreenCondition({What::TEXT, Match::REGEX, "("}).error(), "");
}

} // namespace
