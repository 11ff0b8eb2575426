#include "host/widgets/form/Decimal.h"

#include <gtest/gtest.h>

using host::Decimal;

namespace {

Decimal number(const char* text)
{
    return Decimal::fromText(text).value_or(Decimal());
}

} // namespace

TEST(DecimalTest, KeepsTheDecimalsItIsWrittenWith)
{
    for (const char* text : {"0", "5", "1.50", "-0.25", "123456789.123456", "-999999999"})
        EXPECT_EQ(number(text).text(), text);
    EXPECT_EQ(number("+007.10").text(), "7.10");
    EXPECT_EQ(number("-0").text(), "0");
}

TEST(DecimalTest, TakesNothingThatIsNoNumber)
{
    for (const char* text : {"", "-", "+", ".", ".5", "5.", "1,5", " 1", "1 ", "1e3", "0x1", "--1", "1.2.3", "many",
                             "1234567890", "0.1234567"})
        EXPECT_FALSE(Decimal::fromText(text)) << text;
}

TEST(DecimalTest, AddsExactlyWithTheDecimalsOfBoth)
{
    EXPECT_EQ(number("0.1").plus(number("0.2")).text(), "0.3");
    EXPECT_EQ(number("1").plus(number("0.50")).text(), "1.50");
    EXPECT_EQ(number("1.5").minus(number("2")).text(), "-0.5");
}

TEST(DecimalTest, ComparesNumbersAndNotTexts)
{
    EXPECT_FALSE(number("1.5") < number("1.50"));
    EXPECT_FALSE(number("1.50") < number("1.5"));
    EXPECT_TRUE(number("-2") < number("1"));
    EXPECT_TRUE(number("9") < number("10"));
}

TEST(DecimalTest, SaysHowFarItIs)
{
    EXPECT_EQ(number("5").percentOf(number("0"), number("10")), 50);
    EXPECT_EQ(number("-5").percentOf(number("-10"), number("0")), 50);
    EXPECT_EQ(number("5").percentOf(number("5"), number("5")), 0);
}
