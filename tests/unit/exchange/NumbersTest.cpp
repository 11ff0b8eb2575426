#include "apps/exchange/Numbers.h"

#include "support/Seeds.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <random>

namespace test {

namespace {

using exchange::Behaviour;
using exchange::Numbers;
using exchange::Party;
using exchange::TalkStep;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

Numbers parse(const std::string& text)
{
    return Numbers::parse("numbers.txt", text);
}

/// The behaviour of the only number.
Behaviour behaviourOf(const std::string& text)
{
    const Numbers numbers = parse(text);
    EXPECT_THAT(numbers.errors, IsEmpty());
    EXPECT_THAT(numbers.others, SizeIs(1));
    return numbers.others.empty() ? Behaviour() : *numbers.others.front().behaviour;
}

TEST(NumbersTest, NumberHasAName)
{
    const Numbers numbers = parse("4711 \"Ada Byron, née\" is busy\n  +49*1#  \t is busy  \r\n");
    EXPECT_THAT(numbers.errors, IsEmpty());
    ASSERT_THAT(numbers.others, SizeIs(2));
    EXPECT_EQ(numbers.others[0].party, (Party{"4711", "Ada Byron, née"}));
    EXPECT_EQ(numbers.others[1].party, (Party{"+49*1#", ""}));
}

TEST(NumbersTest, WhatHappensWhenItIsCalled)
{
    using enum Behaviour::Arrival;
    EXPECT_EQ(behaviourOf("1 answers"), (Behaviour{ANSWERS}));
    EXPECT_EQ(behaviourOf("1 answers after 3 s"), (Behaviour{ANSWERS, 3000}));
    EXPECT_EQ(behaviourOf("1 is busy"), (Behaviour{IS_BUSY}));
    EXPECT_EQ(behaviourOf("1 never answers"), (Behaviour{NEVER_ANSWERS}));
    EXPECT_EQ(behaviourOf("1 rejects after 2 s"), (Behaviour{REJECTS, 2000}));
    EXPECT_EQ(behaviourOf("1 fails with \"No line\""), (Behaviour{FAILS, 0, "No line"}));
    EXPECT_EQ(behaviourOf("1 forwards to 2 after 5 s"), (Behaviour{FORWARDS, 5000, "2"}));
}

TEST(NumbersTest, WhatItDoesBehindThat)
{
    const Behaviour behaviour = behaviourOf(
        "1 holds, answers after 1 s, resumes after 5 s, transfers me to 2 after 1 s, transfers to 3, plays in "
        "a conference with 4, calls back after 9 s ,ends after 1 s");
    using Kind = TalkStep::Kind;
    EXPECT_EQ(behaviour.after, 1000);
    EXPECT_EQ(behaviour.callsBack, 9000);
    EXPECT_THAT(behaviour.talk, ElementsAre(TalkStep{Kind::HOLDS, 0}, TalkStep{Kind::RESUMES, 5000},
                                            TalkStep{Kind::TRANSFERS, 1000, "2"}, TalkStep{Kind::TRANSFERS, 0, "3"},
                                            TalkStep{Kind::PLAYS_IN_CONFERENCE, 0, "4"}, TalkStep{Kind::ENDS, 1000}));
}

TEST(NumbersTest, TimesHaveUnits)
{
    for (const auto& [text, milliseconds] : std::vector<std::pair<std::string, int>>{
             {"0 s", 0}, {"200 ms", 200}, {"0.5 s", 500}, {"2 min", 120'000}, {"1440 min", 86'400'000}})
        EXPECT_EQ(behaviourOf("1 answers after " + text).after, milliseconds) << text;
}

TEST(NumbersTest, LinesAreTheTelephones)
{
    const Numbers numbers = parse("line 2 is 3302\nline 1 is 3301 \"Grace\"\nline 2 is not registered\n"
                                  "line 1 has 3 messages\nline 2 has 1 message\nline 2 has no messages");
    EXPECT_THAT(numbers.errors, IsEmpty());
    EXPECT_THAT(numbers.lines, ElementsAre(exchange::Line{.number = 1, .party = {"3301", "Grace"}, .messages = 3},
                                           exchange::Line{.number = 2, .party = {"3302", ""}, .isRegistered = false}));
}

TEST(NumbersTest, WithoutLinesThereAreTwo)
{
    const Numbers numbers = parse("");
    EXPECT_THAT(numbers.lines, ElementsAre(exchange::Line{.number = 1, .party = {"101", ""}},
                                           exchange::Line{.number = 2, .party = {"102", ""}}));
}

TEST(NumbersTest, LinesThatNobodyHasNamedLeaveTheirNumbersToOthers)
{
    const Numbers numbers = parse("101 \"Bob\" answers\n103 answers");
    EXPECT_THAT(numbers.errors, IsEmpty());
    EXPECT_THAT(numbers.lines, ElementsAre(exchange::Line{.number = 1, .party = {"102", ""}},
                                           exchange::Line{.number = 2, .party = {"104", ""}}));
}

TEST(NumbersTest, MoreCanBeSaidOfLinesThatNobodyHasNamed)
{
    const Numbers numbers = parse("line 2 is not registered\nline 3 has 1 message\n4711 sings");
    EXPECT_THAT(numbers.lines, ElementsAre(exchange::Line{.number = 1, .party = {"101", ""}},
                                           exchange::Line{.number = 2, .party = {"102", ""}, .isRegistered = false}));
    EXPECT_THAT(numbers.errors, ElementsAre("numbers.txt:2: it is not said who line 3 is",
                                            HasSubstr("numbers.txt:3: expected what the number does")));
}

TEST(NumbersTest, EmptyLinesAndCommentsAreNothing)
{
    const Numbers numbers = parse("\xEF\xBB\xBF# 4711 sings\r\n\n \t \n  # \xff\n4711 is busy");
    EXPECT_THAT(numbers.errors, IsEmpty());
    EXPECT_THAT(numbers.others, SizeIs(1));
}

/// A line that is wrong, and why.
struct Slip {
    std::string line;
    const char* reason;
};

class SlipTest : public testing::TestWithParam<Slip> {};

TEST_P(SlipTest, IsToldAndTheOthersHold)
{
    const Numbers numbers = parse("# numbers\nline 1 is 3301\n1 is busy\n" + GetParam().line + "\n2 is busy\n");
    EXPECT_THAT(numbers.errors, ElementsAre(HasSubstr(std::string("numbers.txt:4: ") + GetParam().reason)));
    ASSERT_THAT(numbers.others, SizeIs(2));
    EXPECT_EQ(numbers.others[0].party.number, "1");
    EXPECT_EQ(numbers.others[1].party.number, "2");
    EXPECT_THAT(numbers.lines, SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(
    , SlipTest,
    testing::ValuesIn(std::vector<Slip>{
        {"Ada answers", "expected a number of digits, * and #, not 'Ada'"},
        {"4711", "expected what the number does, not the end of the line"},
        {"4711 \"Ada", "the second double quote is missing"},
        {"4711 \"Ada\" \"Byron\" answers", "expected what the number does, not \"Byron\""},
        {"4711 \"answers\"", "expected what the number does, not the end of the line"},
        {"4711 answer after 3 s", "expected what the number does, not 'answer'"},
        {"4711 answers after", "expected a time such as 3 s, not the end of the line"},
        {"4711 answers after 3", "expected ms, s or min behind 3, not the end of the line"},
        {"4711 answers after 3 weeks", "expected ms, s or min behind 3, not 'weeks'"},
        {"4711 answers after 3s", "expected a time such as 3 s, not '3s'"},
        {"4711 answers after -3 s", "expected a time such as 3 s, not '-3'"},
        {"4711 answers after nan s", "expected a time such as 3 s, not 'nan'"},
        {"4711 answers after inf s", "expected a time such as 3 s, not 'inf'"},
        {"4711 answers after 9999999999999999999 min", "no time may be longer than a day"},
        {"4711 answers after 1441 min", "no time may be longer than a day"},
        {"4711 answers soon", "expected a comma or the end of the line, not 'soon'"},
        {"4711 answers,", "expected what the number does, not the end of the line"},
        {"4711 answers, is busy", "'is busy' comes on top of what happens when it is called"},
        {"4711 holds after 3 s", "it is not said what happens when it is called"},
        {"4711 fails with nothing", "expected the reason in double quotes, not 'nothing'"},
        {"4711 fails with \"\"", "the reason is empty"},
        {"4711 forwards to Ada", "expected a number of digits, * and #, not 'Ada'"},
        {"4711 answers, calls back", "it is not said after what time it calls back"},
        {"4711 is busy, calls back after 1 s, calls back after 2 s", "it calls back once only"},
        {"4711 answers, ends busy after 3 s", "why it ends can be said while the program runs, and alone"},
        {"4711 answers, ends \"Cable cut\"", "why it ends can be said while the program runs, and alone"},
        {"4711 calls", "'calls' can be said while the program runs, and alone"},
        {"4711 is busy after 3 s", "expected a comma or the end of the line, not 'after'"},
        {"1 answers", "there is a 1 already"},
        {"3301 answers", "there is a 3301 already"},
        {"line 1 is 3302", "there is a line 1 already"},
        {"line 2 is 1", "there is a 1 already"},
        {"line 9 is 3309", "expected the number of a line from 1 to 8, not '9'"},
        {"line one is 3301", "expected the number of a line from 1 to 8, not 'one'"},
        {"line 2 is registered", "it is not said who line 2 is"},
        {"line 1 has 1000 messages", "expected a number of messages from 0 to 999, not '1000'"},
        {"line 1 has 3 letters", "expected 'messages', not 'letters'"},
        {"line 1 is registered today", "expected the end of the line, not 'today'"},
        {"line 1 sleeps", "expected 'is', not 'sleeps'"},
        {"123456789012345678901234567890123 is busy", "expected a number of digits"},
        {std::string("4711 is\0busy", 12), "byte 8 is a control character"},
        {"4711 is \x7f", "byte 9 is a control character"},
        {"4711 \"\xc2\x80\" is busy", "byte 7 is a control character"},
        {"4711 \"\xc2\x9f\" is busy", "byte 7 is a control character"},
        {"4711 answers after 3 \"s\"", "expected ms, s or min behind 3, not \"s\""},
        {"4711 answers after 1e1 s", "expected a time such as 3 s, not '1e1'"},
        {"4711 answers after inf s", "expected a time such as 3 s, not 'inf'"},
        {"4711 \"\xff\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xc3\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xc0\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xe0\x80\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xed\xa0\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xf0\x80\x80\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xf4\x90\x80\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 \"\xf5\x80\x80\x80\" is busy", "byte 7 is no UTF-8"},
        {"4711 is busy \xe2\x82", "byte 14 is no UTF-8"},
        {"4711 \"" + std::string(1000, 'a') + "\" is busy", "longer than 1000 bytes"},
    }));

TEST(NumbersTest, BytesAtRandomAreReadOrTold)
{
    const std::vector<std::string> pieces = {
        "4711 ", "line 1 ", "answers ",    "after ", "3 s",          "\"", ",",
        "is ",   "busy ",   "calls back ", "\xff",   "\xe2\x82\xac", "\n", std::string(1, '\0'),
        "\r",    "#"};
    for (const unsigned int seed : seeds()) {
        std::minstd_rand random(seed);
        for (int n = 0; n < 300; ++n) {
            std::string text;
            for (int piece = 0; piece < 30; ++piece)
                text += pieces[random() % pieces.size()];
            const Numbers numbers = parse(text + "\n+99 is busy");
            ASSERT_THAT(numbers.others, testing::Contains(testing::Field(&exchange::Number::party, Party{"+99", ""})));
        }
    }
}

TEST(NumbersTest, ReadsAFile)
{
    const TemporaryFolder folder;
    std::ofstream(folder / "numbers.txt") << "4711 is busy\n4712 sings\n";
    const Numbers numbers = Numbers::read(folder / "numbers.txt");
    EXPECT_THAT(numbers.others, SizeIs(1));
    EXPECT_THAT(numbers.errors, ElementsAre(HasSubstr("numbers.txt:2: expected what the number does, not 'sings'")));
}

TEST(NumbersTest, EmptyFileHasNobody)
{
    const TemporaryFolder folder;
    std::ofstream(folder / "numbers.txt").flush();
    const Numbers numbers = Numbers::read(folder / "numbers.txt");
    EXPECT_THAT(numbers.others, IsEmpty());
    EXPECT_THAT(numbers.errors, IsEmpty());
}

TEST(NumbersTest, FileThatCannotBeReadIsTold)
{
    const TemporaryFolder folder;
    for (const std::string& file : {folder / "nowhere", folder / ""}) {
        const Numbers numbers = Numbers::read(file);
        EXPECT_THAT(numbers.errors, ElementsAre(file + ": the numbers cannot be read"));
        EXPECT_THAT(numbers.others, IsEmpty());
        EXPECT_THAT(numbers.lines, SizeIs(2));
    }
}

TEST(NumbersTest, DeskPhonesNumbersAreReadWhole)
{
    const Numbers numbers = Numbers::read(APP_NUMBERS);
    EXPECT_THAT(numbers.errors, IsEmpty());
    EXPECT_THAT(numbers.lines, SizeIs(2));
    EXPECT_GE(numbers.others.size(), 10u);
}

} // namespace

} // namespace test
