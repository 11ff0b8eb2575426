#include "simulator/web/ServerMessages.h"

#include <gtest/gtest.h>

namespace {

using simulator::applicationMessage;
using simulator::languageTag;
using simulator::rowsMessage;

std::string rowsFor(const std::string& text)
{
    return rowsMessage({{text, false, text}}, "en");
}

std::string rowWith(const std::string& json)
{
    return R"({"language":"en","rows":[{"text":")" + json + R"(","selected":false}]})";
}

TEST(ServerMessages, ApplicationHasAProgramAndAPanel)
{
    EXPECT_EQ(applicationMessage("desk\"phone", "wp1"), R"({"application":{"program":"desk\"phone","panel":"wp1"}})");
}

TEST(ServerMessages, OtherNewsAreOneWord)
{
    EXPECT_EQ(simulator::standingMessage(true), R"({"standing":true})");
    EXPECT_EQ(simulator::lampsMessage({true, false}), R"({"lamps":[true,false]})");
    EXPECT_EQ(simulator::lampsMessage({}), R"({"lamps":[]})");
    EXPECT_EQ(simulator::fullMessage(16), R"({"full":16})");
    EXPECT_EQ(simulator::endedMessage(), R"({"ended":true})");
}

TEST(ServerMessages, ExchangeOffersLines)
{
    EXPECT_EQ(simulator::exchangeMessage({}), R"({"exchange":null})");
    EXPECT_EQ(simulator::exchangeMessage({{{"Ada \"B\"", "4711 calls"}}}),
              R"({"exchange":[{"label":"Ada \"B\"","line":"4711 calls"}]})");
    const std::vector<host::Wire::Offer> many(1000, {"1", "1 calls"});
    EXPECT_LT(simulator::exchangeMessage(many).size(), 5'000u);
    EXPECT_EQ(simulator::answerMessage("there is no line 3"), R"({"answer":"there is no line 3"})");
}

TEST(ServerMessages, SignsAreALampAndAHandset)
{
    using host::CallSigns;
    EXPECT_EQ(simulator::signsMessage({}), R"({"signs":{"lamp":"dark","lifted":false}})");
    EXPECT_EQ(simulator::signsMessage({CallSigns::Lamp::LIT, true}), R"({"signs":{"lamp":"lit","lifted":true}})");
    EXPECT_EQ(simulator::signsMessage({CallSigns::Lamp::BLINKS, false}),
              R"({"signs":{"lamp":"blinks","lifted":false}})");
}

TEST(ServerMessages, EmptyPanelHasNoRows)
{
    EXPECT_EQ(rowsMessage({}, ""), R"({"language":"","rows":[]})");
}

TEST(ServerMessages, RowTellsWhatLastsWhereSomethingChangesByItself)
{
    EXPECT_EQ(rowsMessage({{"Line 1  09:41", true, "Line 1"}}, "en"),
              R"({"language":"en","rows":[{"text":"Line 1  09:41","selected":true,"lasting":"Line 1"}]})");
}

TEST(ServerMessages, TextIsEscaped)
{
    EXPECT_EQ(rowsFor("a\"b\\c\n\x7f"), rowWith(R"(a\"b\\c\n\u007f)"));
    EXPECT_EQ(rowsFor("é王"), rowWith(R"(\u00e9\u738b)"));
}

TEST(ServerMessages, BrokenTextStaysJson)
{
    EXPECT_EQ(rowsFor("a\xff"
                      "b"),
              rowWith(R"(a\ufffdb)"));
    EXPECT_EQ(applicationMessage("a\xff", "plain"), R"({"application":{"program":"a\ufffd","panel":"plain"}})");
}

TEST(ServerMessages, LongTextIsCut)
{
    EXPECT_LT(rowsFor(std::string(1'000'000, 'a')).size(), 1'000u);
}

TEST(ServerMessages, LanguageIsNamedAsTheWebNamesIt)
{
    EXPECT_EQ(languageTag("en_GB.UTF-8"), "en-GB");
    EXPECT_EQ(languageTag("sr_RS@latin"), "sr-RS");
    EXPECT_EQ(languageTag("de"), "de");
    for (const char* none : {"", "C", "C.UTF-8", "POSIX"})
        EXPECT_EQ(languageTag(none), "") << none;
}

} // namespace
