#include "host/lcd/TextMap.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace host {

namespace {

class TextMapTest : public testing::Test {
protected:
    std::vector<std::string> texts() const
    {
        std::vector<std::string> found;
        for (const TextRun& run : map.sorted())
            found.push_back(run.text);
        return found;
    }

    TextMap map;
};

TEST_F(TextMapTest, SortsTopToBottomAndLeftToRight)
{
    map.add({{50, 0, 59, 9}, "b"});
    map.add({{0, 10, 9, 19}, "c"});
    map.add({{0, 0, 9, 9}, "a"});
    EXPECT_THAT(texts(), ElementsAre("a", "b", "c"));
}

TEST_F(TextMapTest, SameAreaIsSameText)
{
    map.add({{0, 0, 9, 9}, "old"});
    map.add({{0, 0, 9, 9}, "new"});
    EXPECT_THAT(texts(), ElementsAre("new"));
}

TEST_F(TextMapTest, ForgetsWhatThePassTouches)
{
    map.add({{0, 0, 9, 9}, "touched"});
    map.add({{0, 10, 9, 19}, "apart"});
    map.forget({5, 5, 5, 5});
    EXPECT_THAT(texts(), ElementsAre("apart"));
}

TEST_F(TextMapTest, CoverTakesWholeTextsOfThisPassOnly)
{
    map.add({{0, 0, 9, 9}, "whole"});
    map.add({{15, 0, 24, 9}, "in part"});
    map.add({{0, 30, 9, 39}, "earlier"});
    map.cover({0, 0, 19, 99}, {0, 0, 99, 19});
    EXPECT_THAT(texts(), ElementsAre("in part", "earlier"));
}

} // namespace

} // namespace host
