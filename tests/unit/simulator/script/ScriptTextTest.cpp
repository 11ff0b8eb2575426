#include "simulator/script/ScriptText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace {

using simulator::isPlainLine;
using simulator::onOneLine;
using simulator::quotedForScript;
using simulator::ScriptText;
using testing::ElementsAre;
using testing::SizeIs;

ScriptText whole(std::string_view text)
{
    const ScriptText taken = ScriptText::take(text);
    EXPECT_EQ(text, "");
    return taken;
}

/// In a language of its own.
std::string translate(const std::string& key)
{
    static const std::map<std::string, std::string> texts = {
        {"Menu", "MENÜ"}, {"Found", "%2: %1 von %1%9"}, {"Group", "GRUPPE"}};
    const auto found = texts.find(key);
    return found != texts.end() ? found->second : key;
}

void expectRefused(std::string_view text, const std::string& sentence)
{
    try {
        ScriptText::take(text);
        FAIL() << text;
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(error.what(), sentence);
    }
}

TEST(ScriptTextTest, QuotedTextStandsForItself)
{
    EXPECT_THAT(whole(R"("Zoë \"x\" \\ \n\t\x1B\u200F")").shown(translate), ElementsAre("Zoë \"x\" \\ \n\t\x1B\u200F"));
}

TEST(ScriptTextTest, KeyIsWhatTheCatalogueHas)
{
    EXPECT_THAT(whole(R"(_("Menu"))").shown(translate), ElementsAre("MENÜ"));
    EXPECT_THAT(whole(R"(_("Unknown"))").shown(translate), ElementsAre("Unknown"));
}

TEST(ScriptTextTest, ArgumentsStandInThePlaceOfTheirMarks)
{
    EXPECT_THAT(whole(R"(_("Found", "4", _("Group")))").shown(translate), ElementsAre("GRUPPE: 4 von 4%9"));
}

TEST(ScriptTextTest, AnyOfTheKeysMayBeMeant)
{
    EXPECT_THAT(whole(R"x(_("Menu" or "Group") " (3)")x").shown(translate), ElementsAre("MENÜ (3)", "GRUPPE (3)"));
    EXPECT_THAT(whole(R"x(_("Menu" or "MENÜ"))x").shown(translate), ElementsAre("MENÜ"));
}

TEST(ScriptTextTest, AlternativesDoNotMultiplyWithoutEnd)
{
    std::string text;
    for (int i = 0; i < 64; ++i)
        text += R"(_("a" or "b") )";
    EXPECT_THAT(whole(text).shown(translate), SizeIs(ScriptText::MOST_TEXTS));
}

TEST(ScriptTextTest, WhatIsWrittenIsReadAsItWas)
{
    for (const char* text : {R"("a\"b")", R"(_("Menu"))", R"(_("Menu" or "Group"))",
                             R"("x" _("Found", "4", _("Group")))", R"("\n\x00\x7F\xFF\u202E")", R"("")"})
        EXPECT_EQ(whole(text).written(), text);
}

TEST(ScriptTextTest, NothingUnseenIsWritten)
{
    EXPECT_EQ(quotedForScript("a\r\n\xC3(\xE2\x80\xAE \xF0\x9F\x98\x80\xED\xA0"), R"("a\x0D\n\xC3(\u202E 😀\xED\xA0")");
}

TEST(ScriptTextTest, PlainLineHasNothingUnseen)
{
    EXPECT_TRUE(isPlainLine("4711 calls, Zoë عمر 😀"));
    EXPECT_TRUE(isPlainLine(""));
    for (const char* text : {"a\nb", "a\x7F", "\xC3(", "a\u202Eb", "\u061C", "\u200F"})
        EXPECT_FALSE(isPlainLine(text)) << text;
    EXPECT_EQ(onOneLine("say \"a\""), "say \"a\"");
    EXPECT_EQ(onOneLine("a\n\u202E"), R"(a\n\u202E)");
    EXPECT_EQ(quotedForScript("\u061C"), R"("\u061C")");
}

TEST(ScriptTextTest, WhatIsNoTextIsRefused)
{
    expectRefused("Menu", "a text in double quotes is missing");
    expectRefused(R"("Menu)", "the text has no second double quote");
    expectRefused(R"(_(Menu))", "a text in double quotes is missing");
    expectRefused(R"(_("Menu")", "the bracket of _( is not closed");
    expectRefused(R"("\q")", "behind a backslash there may be \", \\, n, t, x1B or u200F");
    expectRefused(R"("\x1")", "a number of 2 hexadecimal digits is missing");
    std::string deep;
    for (int i = 0; i < 1000; ++i)
        deep += R"(_("a", )";
    expectRefused(deep, "there are too many brackets");
    expectRefused(R"x(_("a", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"))x",
                  "there are only %1 to %9 to be filled in");
    std::string many;
    for (std::size_t i = 0; i <= ScriptText::MOST_PIECES; ++i)
        many += "\"a\" ";
    expectRefused(many, "the text has more than 100 pieces");
}

} // namespace
