#include "kit/Text.h"

#include <gtest/gtest.h>

using DisplayAPI::kit::Text;

namespace {

class German : public TranslatorIfc {
    std::string translate(const std::string& key) override
    {
        return key == "ring" ? "%1 klingelt seit %2 s (%1)" : key;
    }
};

std::string two()
{
    return "2";
}

} // namespace

TEST(TextTest, IsItsKeyWithoutATranslator)
{
    EXPECT_EQ(Text(nullptr, "Hang up").get(), "Hang up");
}

TEST(TextTest, FillsEachMarkWithItsArgument)
{
    German german;
    Text text(&german, "ring", {[] { return std::string("Ada"); }, two});
    EXPECT_EQ(text.get(), "Ada klingelt seit 2 s (Ada)");
    EXPECT_EQ(text.info()->getCompleteString(), "Ada klingelt seit 2 s (Ada)");
}

TEST(TextTest, AsksItsArgumentsAnewEachTime)
{
    int calls = 0;
    Text text(nullptr, "%1", {[&] { return std::to_string(++calls); }});
    EXPECT_EQ(text.get(), "1");
    EXPECT_EQ(text.get(), "2");
}

TEST(TextTest, LeavesWhatAnArgumentSaysAsItIs)
{
    Text text(nullptr, "%1-%2", {[] { return std::string("%2"); }, two});
    EXPECT_EQ(text.get(), "%2-2");
}

TEST(TextTest, LeavesMarksWithoutAnArgument)
{
    Text text(nullptr, "100 % of %0 %2 %9 %", {two});
    EXPECT_EQ(text.get(), "100 % of %0 %2 %9 %");
}
