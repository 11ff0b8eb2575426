#include "utilities/ICC.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iconv.h>
#include <random>
#include <string>
#include <vector>

namespace {

using Units = std::vector<PegChar>;
using namespace std::string_literals;

constexpr PegChar BAD = 0xFFFD;

Units decoded(const std::string& text)
{
    const PegString units = ICC::fromUTF8toUNICODE(text);
    return {units.data(), units.data() + units.length()};
}

std::string encoded(const Units& units)
{
    return ICC::fromUNICODEtoUTF8(PegString(units.data(), units.size()));
}

struct Case {
    const char* name;
    std::string bytes;
    Units units;
};

std::ostream& operator<<(std::ostream& out, const Case& one)
{
    return out << one.name;
}

class ICCDecode : public testing::TestWithParam<Case> {};

TEST_P(ICCDecode, Gives)
{
    EXPECT_EQ(decoded(GetParam().bytes), GetParam().units);
}

TEST_P(ICCDecode, LosesNothingAround)
{
    Units expected{'<'};
    expected.insert(expected.end(), GetParam().units.begin(), GetParam().units.end());
    expected.push_back('>');
    EXPECT_EQ(decoded("<" + GetParam().bytes + ">"), expected);
}

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

const Case WELL_FORMED[] = {
    {"Empty", "", {}},
    {"Ascii", "Hello, world, 0123456789", {'H', 'e', 'l', 'l', 'o', ',', ' ', 'w', 'o', 'r', 'l', 'd',
                                           ',', ' ', '0', '1', '2', '3', '4', '5', '6', '7', '8', '9'}},
    {"ZeroInside", "a\0b"s, {'a', 0, 'b'}},
    {"FirstOfTwoBytes", "\xC2\x80", {0x80}},
    {"FirstOfThreeBytes", "\xE0\xA0\x80", {0x800}},
    {"LastOfOneByte", "\x7F", {0x7F}},
    {"LastOfTwoBytes", "\xDF\xBF", {0x7FF}},
    {"LastOfThreeBytes", "\xEF\xBF\xBF", {0xFFFF}},
    {"BeforeSurrogates", "\xED\x9F\xBF", {0xD7FF}},
    {"AfterSurrogates", "\xEE\x80\x80", {0xE000}},
    {"ReplacementItself", "\xEF\xBF\xBD", {0xFFFD}},
    {"Greek", "\xCE\xBA\xE1\xBD\xB9\xCF\x83\xCE\xBC\xCE\xB5", {0x3BA, 0x1F79, 0x3C3, 0x3BC, 0x3B5}},
};
INSTANTIATE_TEST_SUITE_P(WellFormed, ICCDecode, testing::ValuesIn(WELL_FORMED), nameOf);

const Case TOO_HIGH[] = {
    {"FirstOfFourBytes", "\xF0\x90\x80\x80", {BAD}},
    {"Emoji",
     "a\xF0\x9F\x93\x9E"
     "b",
     {'a', BAD, 'b'}},
    {"LastCodePoint", "\xF4\x8F\xBF\xBF", {BAD}},
};
INSTANTIATE_TEST_SUITE_P(TooHighForUcs2, ICCDecode, testing::ValuesIn(TOO_HIGH), nameOf);

const Case STRAY_BYTES[] = {
    {"FirstContinuation", "\x80", {BAD}},
    {"LastContinuation", "\xBF", {BAD}},
    {"SevenContinuations", "\x80\xBF\x80\xBF\x80\xBF\x80", {BAD, BAD, BAD, BAD, BAD, BAD, BAD}},
    {"LoneLeadsOfTwo", "\xC2 \xDF ", {BAD, ' ', BAD, ' '}},
    {"LoneLeadsOfThree", "\xE0 \xEF ", {BAD, ' ', BAD, ' '}},
    {"LoneLeadsOfFour", "\xF0 \xF4 ", {BAD, ' ', BAD, ' '}},
    {"Fe", "\xFE", {BAD}},
    {"Ff", "\xFF", {BAD}},
    {"FeFeFfFf", "\xFE\xFE\xFF\xFF", {BAD, BAD, BAD, BAD}},
};
INSTANTIATE_TEST_SUITE_P(StrayBytes, ICCDecode, testing::ValuesIn(STRAY_BYTES), nameOf);

const Case TRUNCATED[] = {
    {"TwoBytesOfThree", "\xE1\x80", {BAD}},
    {"TwoBytesOfFour", "\xF1\x80", {BAD}},
    {"ThreeBytesOfFour", "\xF1\x80\x80", {BAD}},
    {"OneAfterTheOther", "\xC2\xE1\x80\xF1\x80\x80\xF1\x80", {BAD, BAD, BAD, BAD}},
    {"LetterInTheMiddle", "\xE4\xB8z", {BAD, 'z'}},
    {"NextCharacterInTheMiddle", "\xE4\xB8\xC3\xA4", {BAD, 0xE4}},
    {"MaximalSubparts",
     "a\xF1\x80\x80\xE1\x80\xC2"
     "b\x80"
     "c\x80\xBF"
     "d",
     {'a', BAD, BAD, BAD, 'b', BAD, 'c', BAD, BAD, 'd'}},
};
INSTANTIATE_TEST_SUITE_P(Truncated, ICCDecode, testing::ValuesIn(TRUNCATED), nameOf);

const Case OVERLONG[] = {
    {"SlashInTwo", "\xC0\xAF", {BAD, BAD}},
    {"SlashInThree", "\xE0\x80\xAF", {BAD, BAD, BAD}},
    {"SlashInFour", "\xF0\x80\x80\xAF", {BAD, BAD, BAD, BAD}},
    {"SlashInFive", "\xF8\x80\x80\x80\xAF", {BAD, BAD, BAD, BAD, BAD}},
    {"SlashInSix", "\xFC\x80\x80\x80\x80\xAF", {BAD, BAD, BAD, BAD, BAD, BAD}},
    {"ZeroInTwo", "\xC0\x80", {BAD, BAD}},
    {"HighestInTwo", "\xC1\xBF", {BAD, BAD}},
    {"HighestInThree", "\xE0\x9F\xBF", {BAD, BAD, BAD}},
    {"HighestInFour", "\xF0\x8F\xBF\xBF", {BAD, BAD, BAD, BAD}},
};
INSTANTIATE_TEST_SUITE_P(Overlong, ICCDecode, testing::ValuesIn(OVERLONG), nameOf);

const Case SURROGATES[] = {
    {"FirstHigh", "\xED\xA0\x80", {BAD, BAD, BAD}},
    {"LastHigh", "\xED\xAF\xBF", {BAD, BAD, BAD}},
    {"FirstLow", "\xED\xB0\x80", {BAD, BAD, BAD}},
    {"LastLow", "\xED\xBF\xBF", {BAD, BAD, BAD}},
    {"Pair", "\xED\xA0\x80\xED\xB0\x80", {BAD, BAD, BAD, BAD, BAD, BAD}},
};
INSTANTIATE_TEST_SUITE_P(Surrogates, ICCDecode, testing::ValuesIn(SURROGATES), nameOf);

const Case TOO_LONG[] = {
    {"PastTheLastCodePoint", "\xF4\x90\x80\x80", {BAD, BAD, BAD, BAD}},
    {"F5", "\xF5\x80\x80\x80", {BAD, BAD, BAD, BAD}},
    {"FiveBytes", "\xF8\x88\x80\x80\x80", {BAD, BAD, BAD, BAD, BAD}},
    {"SixBytes", "\xFC\x84\x80\x80\x80\x80", {BAD, BAD, BAD, BAD, BAD, BAD}},
};
INSTANTIATE_TEST_SUITE_P(OutOfRange, ICCDecode, testing::ValuesIn(TOO_LONG), nameOf);

Units byIconv(const std::string& text)
{
    Units units(text.size());
    const iconv_t converter = iconv_open("UCS-2LE", "UTF-8");
    char* from = const_cast<char*>(text.data());
    char* to = reinterpret_cast<char*>(units.data());
    std::size_t fromLeft = text.size();
    std::size_t toLeft = units.size() * sizeof(PegChar);
    EXPECT_EQ(iconv(converter, &from, &fromLeft, &to, &toLeft), 0u);
    iconv_close(converter);
    units.resize(units.size() - toLeft / sizeof(PegChar));
    return units;
}

TEST(ICC, AgreesWithAnIndependentConverterOnEveryCodePoint)
{
    Units all;
    for (unsigned int point = 0; point <= 0xFFFF; ++point)
        if (point < 0xD800 || point > 0xDFFF)
            all.push_back(static_cast<PegChar>(point));
    const std::string text = encoded(all);
    EXPECT_EQ(byIconv(text), all);
    EXPECT_EQ(decoded(text), all);
}

TEST(ICC, AsciiOfAnyLengthAndPositionComesThrough)
{
    for (std::size_t length = 0; length < 40; ++length) {
        std::string text(length, 'x');
        EXPECT_EQ(decoded(text), Units(length, 'x'));
        for (std::size_t at = 0; at < length; ++at) {
            std::string withBad = text;
            withBad[at] = '\x80';
            Units expected(length, 'x');
            expected[at] = BAD;
            ASSERT_EQ(decoded(withBad), expected) << length << " at " << at;
        }
    }
}

TEST(ICC, AsciiSurvivesAnyNoise)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20'000; ++round) {
        std::string text;
        Units letters;
        for (int i = 0; i < 20; ++i) {
            const auto byte = static_cast<unsigned char>(random());
            text += static_cast<char>(byte);
            if (byte < 0x80)
                letters.push_back(byte);
        }
        Units found = decoded(text);
        std::erase_if(found, [](PegChar unit) { return unit >= 0x80; });
        ASSERT_EQ(found, letters);
    }
}

TEST(ICC, AMegabyteComesThrough)
{
    std::string text;
    while (text.size() < 1 << 20)
        text += "\xE4\xB8\xAD\xE6\x96\x87 abc ";
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(ICC::fromUTF8toUNICODE(text)), text);
}

TEST(ICC, EncodesTheShortestForm)
{
    EXPECT_EQ(encoded({0x7F, 0x80, 0x7FF, 0x800, 0xFFFF}), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
    EXPECT_EQ(encoded({'a', 0, 'b'}), "a\0b"s);
}

TEST(ICC, EncodesASurrogateAsReplacement)
{
    EXPECT_EQ(encoded({0xD800}), "\xEF\xBF\xBD");
    EXPECT_EQ(encoded({'a', 0xDBFF, 0xDC00, 'b'}), "a\xEF\xBF\xBD\xEF\xBF\xBD"
                                                   "b");
    EXPECT_EQ(encoded({0xDFFF}), "\xEF\xBF\xBD");
}

TEST(ICC, AsciiReplacesWhatItHasNot)
{
    const PegString text = ICC::fromUTF8toUNICODE("caf\xC3\xA9 \xE4\xB8\xAD\x7F");
    EXPECT_EQ(ICC::fromUNICODEtoASCII(text), "caf? ?\x7F");
    EXPECT_EQ(ICC::fromUNICODEtoASCII(PegString()), "");
}

} // namespace
