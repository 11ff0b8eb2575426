#include "host/Phone.h"

#include "widgets/KestrelApplication.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using host::Variant;

TEST(Phone, VariantsHaveNames)
{
    for (const Variant variant : {Variant::PLAIN, Variant::NARROW, Variant::WP1})
        EXPECT_EQ(host::variantFromName(host::nameOf(variant)), variant);
    EXPECT_EQ(host::variantFromName("plain"), Variant::PLAIN);
    EXPECT_EQ(host::variantFromName("narrow"), Variant::NARROW);
    EXPECT_EQ(host::variantFromName("wp1"), Variant::WP1);
}

TEST(Phone, AnyOtherNameIsNoVariant)
{
    for (const char* name : {"", "WP1", "wide"})
        EXPECT_EQ(host::variantFromName(name), std::nullopt) << name;
}

TEST(Phone, VariantDecidesWhatTheApplicationPasses)
{
    struct {
        Variant variant;
        const char* hardware;
        bool narrow;
        int width, height;
    } const rows[] = {
        {Variant::NARROW, "plain", true, 168, 128},
        {Variant::WP1, "WP1", false, 208, 42},
        {Variant::PLAIN, "plain", false, 240, 128},
    };
    for (const auto& row : rows) {
        host::setVariant(row.variant);
        EXPECT_EQ(host::variant(), row.variant);
        EXPECT_EQ(host::hardwareName(), row.hardware);
        EXPECT_EQ(host::isNarrow(), row.narrow);
        EXPECT_EQ(host::panelSize().width, row.width);
        EXPECT_EQ(host::panelSize().height, row.height);
    }
}

/// What a fresh process with this environment takes for its panel; leaves the process with 0 when it is `expected`.
[[noreturn]] void exitWith(const char* environment, int applicationsVariant, Variant expected)
{
    if (environment)
        setenv("DISPLAYAPI_VARIANT", environment, 1);
    else
        unsetenv("DISPLAYAPI_VARIANT");
    KestrelApplication application;
    application.setHardwareVariant(applicationsVariant);
    KestrelApplication::setCurrentApplication(&application);
    const bool right = host::variant() == expected && host::variant() == expected;
    std::_Exit(right ? 0 : 1);
}

class PhoneProcessTest : public testing::Test {
protected:
    PhoneProcessTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(PhoneProcessTest, EnvironmentChooses)
{
    EXPECT_EXIT(exitWith("narrow", 1, Variant::NARROW), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(exitWith("plain", 0, Variant::PLAIN), testing::ExitedWithCode(0), "^$");
}

TEST_F(PhoneProcessTest, ApplicationDecidesWhereNobodyChose)
{
    EXPECT_EXIT(exitWith(nullptr, 0, Variant::WP1), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(exitWith("", 1, Variant::PLAIN), testing::ExitedWithCode(0), "^$");
}

TEST_F(PhoneProcessTest, UnknownNameIsReportedOnceAndCountsAsNone)
{
    EXPECT_EXIT(exitWith("wide", 1, Variant::PLAIN), testing::ExitedWithCode(0),
                "^DISPLAYAPI_VARIANT is 'wide'; it may be plain, narrow or wp1\n$");
}

} // namespace
