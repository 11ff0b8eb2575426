#include "audit/Catalogue.h"
#include "audit/Faults.h"
#include "audit/Walk.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using audit::Allowed;
using audit::Fault;
using audit::isThatText;
using testing::ElementsAre;
using testing::HasSubstr;

std::string fileWith(const std::string& text)
{
    static const test::TemporaryFolder folder;
    const std::string name = folder / "AuditTest";
    std::ofstream(name) << text;
    return name;
}

TEST(AuditCatalogue, MarksStandForAnyText)
{
    EXPECT_TRUE(isThatText("Up %1 s", "Up 12 s"));
    EXPECT_TRUE(isThatText("%1  %2", "09:12  Ann"));
    EXPECT_TRUE(isThatText("Zo\u00EB", "Zo\u00EB"));
    EXPECT_FALSE(isThatText("Up %1 s", "Up 12 m"));
    EXPECT_FALSE(isThatText("Call", "Calls"));
    EXPECT_FALSE(isThatText("Calls", "Call"));
    EXPECT_TRUE(isThatText("100 %", "100 %"));
}

TEST(AuditCatalogue, KeysOfTheKeypadAreNotShown)
{
    EXPECT_THAT(audit::keysOf(fileWith("msgid \"\"\nmsgstr \"Language: en\"\nmsgid \"Menu.title\"\nmsgstr \"x\"\n"
                                       "msgid \"Keypad.2.lower.case\"\nmsgid \"Text.input.mode.numeric\"\n")),
                ElementsAre("Menu.title"));
}

TEST(AuditAllowed, CoversWhatItNames)
{
    const Allowed allowed(fileWith("# why\n\ncut de wp1 menu Sehr lang -- there is no shorter word\n"));
    EXPECT_THAT(allowed.errors(), ElementsAre());
    EXPECT_TRUE(allowed.covers({"cut", "de", "wp1", "menu", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"glyph", "de", "wp1", "menu", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"cut", "fr", "wp1", "menu", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"cut", "de", "plain", "menu", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"cut", "de", "wp1", "log", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"cut", "de", "wp1", "menu", "Sehr langsam"}));
}

TEST(AuditAllowed, StarIsAnythingButNotForGlyphs)
{
    const Allowed allowed(fileWith("cut * * * Se* -- a\nglyph * * * Se* -- b\n"));
    EXPECT_TRUE(allowed.covers({"cut", "de", "wp1", "menu", "Sehr lang"}));
    EXPECT_FALSE(allowed.covers({"cut", "de", "wp1", "menu", "sehr lang"}));
    EXPECT_FALSE(allowed.covers({"glyph", "de", "wp1", "menu", "Sehr lang"}));
}

TEST(AuditAllowed, LineWithoutAReasonIsAnError)
{
    EXPECT_THAT(Allowed(fileWith("cut de wp1 menu Lang\ncut de wp1 menu Lang -- \ncut de -- why\n")).errors(),
                testing::SizeIs(3));
}

TEST(AuditWalk, VisitsEachScreenAndEachOfItsRows)
{
    const auto screens = audit::readScreens(fileWith("# a comment\nlog 2 0 1 0\n"));
    ASSERT_EQ(screens.size(), 1u);
    EXPECT_THAT(audit::scriptThrough(screens, 2, false),
                HasSubstr("key ok\nkey down\nkey ok\nhold up 1500\nkey ok\nhold up 1500\ndump --json log.json\ndump "
                          "log.txt\nkey down\n"
                          "dump --json log.1.json\ndump log.1.txt\nkey left\ndump --json from-log.json\ndump "
                          "from-log.txt\nkey hook\nkey left\n"));
}

TEST(AuditWalk, AnotherKeyThanOkLeavesTheSelectionAlone)
{
    const auto screens = audit::readScreens(fileWith("menu 1 0 0 1:right\n"));
    ASSERT_EQ(screens.size(), 1u);
    EXPECT_THAT(
        audit::scriptThrough(screens, 0, false),
        HasSubstr(
            "key ok\nkey ok\nhold up 1500\nkey down\nkey right\ndump --json menu.json\ndump menu.txt\nkey left\n"));
}

TEST(AuditWalk, LineOfAScriptIsTakenAsItIs)
{
    const auto screens = audit::readScreens(fileWith("held 1 0 =exchange.4711.holds =wait.200\n"));
    ASSERT_EQ(screens.size(), 1u);
    EXPECT_THAT(audit::scriptThrough(screens, 0, false),
                HasSubstr("key ok\nexchange 4711 holds\nwait 200\ndump --json held.json\ndump held.txt\nkey left\n"
                          "dump --json from-held.json\ndump from-held.txt\nkey hook\ndump --json "
                          "hung-up-held.json\ndump hung-up-held.txt\n"));
}

TEST(AuditWalk, NextTabStandsWhereTheLanguageGoesOn)
{
    const auto screens = audit::readScreens(fileWith("tab 1 0 0:next 1\n"));
    ASSERT_EQ(screens.size(), 1u);
    EXPECT_THAT(audit::scriptThrough(screens, 0, false), HasSubstr("key right\nkey down\nkey ok\n"));
    EXPECT_THAT(audit::scriptThrough(screens, 0, true), HasSubstr("key left\nkey down\nkey ok\n"));
}

TEST(AuditWalk, NumberOfContactsIsAPositiveNumber)
{
    EXPECT_EQ(audit::toContacts("10000"), 10000);
    for (const char* text : {"", "0", "-1", "ten", "10x", " 10", "99999999999"})
        EXPECT_THROW(audit::toContacts(text), std::runtime_error) << text;
}

template <class Read>
std::string complaintOf(Read read)
{
    try {
        read();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

TEST(AuditFiles, MissingFileIsNoEmptyOne)
{
    EXPECT_EQ(complaintOf([] { audit::readScreens("/nowhere/screens"); }), "cannot read /nowhere/screens");
    EXPECT_EQ(complaintOf([] { Allowed("/nowhere/allowed"); }), "cannot read /nowhere/allowed");
    EXPECT_EQ(complaintOf([] { audit::keysOf("/nowhere/en.po"); }), "cannot read /nowhere/en.po");
    EXPECT_EQ(complaintOf([] { audit::readScreens("/"); }), "cannot read /");
    EXPECT_EQ(complaintOf([] { audit::readScreens(fileWith("")); }), "");
}

} // namespace
