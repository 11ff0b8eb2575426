#include "DisplayAPI/ScreenText.h"

#include <gtest/gtest.h>

using namespace DisplayAPI;

TEST(ScreenTextTest, ObjectsHoldCaptionsAndSubItemsHoldNumberedTexts)
{
    const std::string row =
        screen::subItem("KestrelListBoxItem", screen::textLine(0, "Ada") + screen::textLine(1, "12"));
    EXPECT_EQ(screen::object("KestrelListBox", screen::caption("Menu") + row),
              "object:\nname:KestrelListBox\ncaption:Menu\n"
              "subitem:\nname:KestrelListBoxItem\nstring0:Ada\nstring1:12\nendsubitem:\n"
              "end:\n");
}

TEST(ScreenTextTest, ObjectsBeginAlike)
{
    EXPECT_EQ(screen::object("Form", {}), screen::objectStart("Form") + "end:\n");
}

TEST(ScreenTextTest, WhatWouldEndALineIsABlank)
{
    EXPECT_EQ(screen::caption("a\nend:\r\n\t\x7F."), "caption:a end:    .\n");
    EXPECT_EQ(screen::textLine(10, "Größe\n"), "string10:Größe \n");
}

TEST(ScreenTextTest, LeavesAsAscii)
{
    EXPECT_EQ(screen::toAscii("abc"), "abc");
    for (const char c : screen::toAscii("Größe 日本"))
        EXPECT_GT(c, 0);
}
