#include "utilities/Logging.h"

#include "host/utilities/Log.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

namespace {

using host::Log;
using host::LogCapture;

TEST(Logging, IsOffUnlessSomebodyListens)
{
    EXPECT_FALSE(loggingOnUni());
    {
        const LogCapture capture;
        EXPECT_TRUE(loggingOnUni());
    }
    EXPECT_FALSE(loggingOnUni());
}

TEST(Logging, LineCarriesModuleFileLevelLineAndText)
{
    const LogCapture capture;
    logAppUni("DisplayAPI::List", "./src/List", 5, 247, "row %d of %s", 3, "many");
    ASSERT_EQ(capture.lines().size(), 1u);
    const host::LogLine line = capture.lines()[0];
    EXPECT_EQ(line.module, "DisplayAPI::List");
    EXPECT_EQ(line.file, "./src/List");
    EXPECT_EQ(line.level, 5);
    EXPECT_EQ(line.line, 247);
    EXPECT_EQ(line.text, "row 3 of many");
}

TEST(Logging, LineEndIsNotPartOfTheText)
{
    const LogCapture capture;
    logAppUni("m", "f", 2, 1, "gone\n");
    EXPECT_EQ(capture.lines().at(0).text, "gone");
}

TEST(Logging, LongTextsComeWhole)
{
    const LogCapture capture;
    const std::string text(100'000, 'x');
    logAppUni("m", "f", 2, 1, "%s", text.c_str());
    EXPECT_EQ(capture.lines().at(0).text, text);
}

TEST(Logging, FilterDropsHigherLevelsAndOtherModules)
{
    const LogCapture capture({3, "DisplayAPI::"});
    logAppUni("DisplayAPI::List", "f", 5, 1, "too fine");
    logAppUni("PegWidgets", "f", 2, 2, "another module");
    logAppUni("DisplayAPI::List", "f", 3, 3, "wanted");
    ASSERT_EQ(capture.lines().size(), 1u);
    EXPECT_EQ(capture.lines()[0].text, "wanted");
}

TEST(Logging, EachListenerHasItsOwnFilter)
{
    const LogCapture all;
    const LogCapture lost({2, ""});
    logAppUni("m", "f", 2, 1, "lost");
    logAppUni("m", "f", 5, 2, "trace");
    EXPECT_EQ(all.lines().size(), 2u);
    EXPECT_EQ(lost.lines().size(), 1u);
}

TEST(Logging, ManyThreadsMayWrite)
{
    const LogCapture capture;
    const auto writeMany = [] {
        for (int i = 0; i < 1000; ++i)
            logAppUni("m", "f", 2, i, "line %d", i);
    };
    std::thread other(writeMany);
    writeMany();
    other.join();
    EXPECT_EQ(capture.lines().size(), 2000u);
}

TEST(Logging, LinesMayBeReadWhileAnotherThreadWrites)
{
    constexpr int LINES = 5'000;
    const LogCapture capture;
    std::thread writer([] {
        for (int i = 0; i < LINES; ++i)
            logAppUni("m", "f", 2, i, "line %d", i);
    });
    std::size_t read = 0;
    while (read < LINES) {
        const auto lines = capture.lines();
        EXPECT_GE(lines.size(), read);
        read = lines.size();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    writer.join();
}

TEST(Logging, SettingNamesLevelAndModule)
{
    Log::Filter filter;
    ASSERT_TRUE(Log::parse("3", filter));
    EXPECT_EQ(filter.level, 3);
    EXPECT_EQ(filter.modulePrefix, "");
    ASSERT_TRUE(Log::parse("5:DisplayAPI::List", filter));
    EXPECT_EQ(filter.level, 5);
    EXPECT_EQ(filter.modulePrefix, "DisplayAPI::List");
}

TEST(Logging, SettingWithoutALevelAsksForNothing)
{
    Log::Filter filter;
    for (const char* setting : {"", "0", "-1", "x", "5x", ":DisplayAPI"})
        EXPECT_FALSE(Log::parse(setting, filter)) << setting;
    EXPECT_FALSE(Log::parse(nullptr, filter));
}

[[noreturn]] void writeAndExit()
{
    logAppUni("DisplayAPI::List", "./src/List", 5, 1, "too fine");
    logAppUni("PegWidgets", "f", 2, 2, "another module");
    logAppUni("DisplayAPI::List", "./src/List", 3, 247, "refused %d", 7);
    std::_Exit(0);
}

TEST(Logging, EnvironmentSendsLinesToStderr)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    setenv("DISPLAYAPI_LOG", "3:DisplayAPI::", 1);
    EXPECT_EXIT(writeAndExit(), testing::ExitedWithCode(0), "^\\[3\\] DisplayAPI::List ./src/List:247 refused 7\n$");
    unsetenv("DISPLAYAPI_LOG");
}

} // namespace
