#include "simulator/record/TextOrigin.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using simulator::TextOrigin;
using Origin = host::TranslationMemory::Origin;

/// As the catalogue has been asked.
std::string scriptOf(const std::string& text)
{
    static const std::map<std::string, std::vector<Origin>> origins = {
        {"Kontakte", {{"Contacts.title", "Kontakte", ""}, {"Menu.contacts", "Kontakte", ""}}},
        {"Verbunden, Leitung 1", {{"Call.on.line", "%1, Leitung %2", ""}}},
        {"Verbunden", {{"Call.connected", "Verbunden", ""}}},
        {"Anrufe (3)", {{"Calls", "Anrufe", " (3)"}}},
        {"Arbeit", {{"Number.work", "Arbeit", ""}}},
        {"Unknown", {{"Unknown", "Unknown", ""}}},
        {"Former", {{"Changed", "Other", ""}}},
        {"twice twice", {{"Twice", "%1 %1", ""}}},
        {"one two", {{"Twice", "%1 %1", ""}}},
    };
    const TextOrigin origin([](const std::string& shown) {
        const auto found = origins.find(shown);
        return found != origins.end() ? found->second : std::vector<Origin>();
    });
    return origin.of(text).written();
}

TEST(TextOriginTest, DataStandsAsItIs)
{
    EXPECT_EQ(scriptOf("Ada Byron"), R"("Ada Byron")");
    EXPECT_EQ(scriptOf(""), R"("")");
    EXPECT_EQ(scriptOf(", "), R"(", ")");
}

TEST(TextOriginTest, WordOfTheCataloguesMayBeTheUsersOwn)
{
    EXPECT_EQ(scriptOf("Arbeit"), R"x(_("Number.work" or "Arbeit"))x");
    EXPECT_EQ(scriptOf("Unknown"), R"x(_("Unknown"))x");
}

TEST(TextOriginTest, TextOfManyWordsIsNoLongerThanAScriptMayHave)
{
    std::string text = "Arbeit";
    for (int i = 0; i < 1000; ++i)
        text += ", Arbeit";
    EXPECT_EQ(scriptOf(text), '"' + text + '"');
}

TEST(TextOriginTest, KeysWithTheSameTextStandSideBySide)
{
    EXPECT_EQ(scriptOf("Kontakte"), R"x(_("Contacts.title" or "Menu.contacts" or "Kontakte"))x");
}

TEST(TextOriginTest, WhatIsFilledInIsAnArgument)
{
    EXPECT_EQ(scriptOf("Verbunden, Leitung 1"), R"x(_("Call.on.line", _("Call.connected" or "Verbunden"), "1"))x");
    EXPECT_EQ(scriptOf("twice twice"), R"x(_("Twice", "twice"))x");
}

TEST(TextOriginTest, TextThatIsNoneOfThePatternStandsAsItIs)
{
    EXPECT_EQ(scriptOf("one two"), R"("one two")");
    EXPECT_EQ(scriptOf("Former"), R"("Former")");
}

TEST(TextOriginTest, AdditionStandsBehind)
{
    EXPECT_EQ(scriptOf("Anrufe (3)"), R"x(_("Calls") " (3)")x");
}

TEST(TextOriginTest, WordBesideANameIsTheCataloguesOrTheUsers)
{
    EXPECT_EQ(scriptOf("Ada, Arbeit"), R"x("Ada, " _("Number.work" or "Arbeit"))x");
    EXPECT_EQ(scriptOf("Arbeit, Ada, Arbeit"),
              R"x(_("Number.work" or "Arbeit") ", Ada, " _("Number.work" or "Arbeit"))x");
}

} // namespace
