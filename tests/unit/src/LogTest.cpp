#include "Log.h"

#include "support/LogLines.h"

using DisplayAPI::Log;
using DisplayAPI::PlainText;
using host::LogLine;
using testing::ElementsAre;

namespace {

constexpr Log LOG{"DisplayAPI::Sample", "./src/Sample"};

} // namespace

static_assert(PlainText::isPlain(""));
static_assert(PlainText::isPlain("row"));
static_assert(PlainText::isPlain("50 %%"));
static_assert(!PlainText::isPlain("row %d"));
static_assert(!PlainText::isPlain("50 %"));
static_assert(!PlainText::isPlain("%%%"));

TEST(LogTest, ATextWithoutArgumentsIsItsOwnFormat)
{
    const host::LogCapture log;
    LOG(DisplayAPI::TRACE, 7, "50 %% done");
    EXPECT_THAT(log.lines(), ElementsAre(LogLine{"DisplayAPI::Sample", "./src/Sample", 5, 7, "50 % done"}));
}

TEST(LogTest, ArgumentsAreFormatted)
{
    const host::LogCapture log;
    LOG(DisplayAPI::LOST, 8, "row %d of %s", 3, "many");
    EXPECT_THAT(log.lines(), ElementsAre(LogLine{"DisplayAPI::Sample", "./src/Sample", 2, 8, "row 3 of many"}));
}

TEST(LogTest, ATextWithPercentSignsIsSafeAsAnArgument)
{
    const host::LogCapture log;
    LOG(DisplayAPI::TRACE, 9, "%s", "50 %s%n");
    EXPECT_THAT(log.lines(), ElementsAre(LogLine{"DisplayAPI::Sample", "./src/Sample", 5, 9, "50 %s%n"}));
}
