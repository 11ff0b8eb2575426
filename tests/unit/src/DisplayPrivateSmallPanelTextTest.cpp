// The system window as text on the small panel, where it stands before the screen.

#include "unit/src/DisplayPrivateLinesTest.h"

using namespace test;

namespace {

const std::string MENU = "object:\nname:Menu\nend:\n";
const std::string BLANKS(24, ' ');
const std::vector<DisplayAPIUtils::Rect> EVERYTHING{{0, 0, 240, 128}};

/// What a context menu reads as, with its first row.
std::string contextMenu(const std::string& row)
{
    return "object:\nname:ContextMenu20Line2\ncaption:Call\nsubitem:\nname:KestrelListBoxItem\n" + row +
           "endsubitem:\nend:\n";
}

std::string caption(const std::string& line)
{
    return "object:\nname:PopupTextField\ncaption:" + line;
}

std::string row(const std::string& line)
{
    return "\nsubitem:\nname:KestrelListBoxItem\nstring0:" + line + "\nendsubitem:";
}

class DisplayPrivateSmallPanelTextTest : public DisplayPrivateLinesTest {
protected:
    DisplayPrivateSmallPanelTextTest()
    {
        start(SMALL_PANEL, SIP);
        for (Screen* screen : {&menu, &popup})
            screen->widget()->Resize({0, 0, 207, 41});
        menu.getPrivateImpl()->text = MENU;
    }

    /// The lines as they are, also where an empty one would become a space.
    void givenTexts(const std::string& line0, const std::string& line1)
    {
        content().setSystemWindowText(0, line0);
        content().setSystemWindowText(1, line1);
    }

    std::string text() { return display->serialiseByRect(EVERYTHING, false); }
};

/// A context menu above the screen.
class DisplayPrivateContextMenuTextTest : public DisplayPrivateSmallPanelTextTest {
protected:
    DisplayPrivateContextMenuTextTest()
    {
        popup.getPrivateImpl()->text = contextMenu("string0:Hold\n");
        given({&menu, &popup});
        givenTexts("noon", "busy");
    }

    std::string screen() { return MENU + *popup.getPrivateImpl()->text; }

    void reset() { display->setSystemWindowSize(0); }
};

} // namespace

TEST_F(DisplayPrivateSmallPanelTextTest, TwoLinesAreACaptionWithARow)
{
    given({&menu});
    givenTexts("noon", "busy");
    const std::string expected = caption("noon") + row("busy") + "\nend:\n" + MENU;
    for (const char* software : {SIP, KVX, "softwareUnknown"}) {
        display->setSoftwareType(software);
        EXPECT_EQ(display->serialiseByRect(EVERYTHING, false), expected) << software;
        EXPECT_EQ(display->serialiseByRect(EVERYTHING, true), expected) << software;
    }
    EXPECT_EQ(display->serialise(), MENU);
}

TEST_F(DisplayPrivateSmallPanelTextTest, ItStandsThereWhetherTheWindowIsUpOrNot)
{
    givenLines(2, menu);
    const std::string expected = caption("line 0") + row("line 1") + "\nend:\n" + MENU;
    EXPECT_EQ(text(), expected);
    display->hide();
    EXPECT_EQ(text(), expected);
}

TEST_F(DisplayPrivateSmallPanelTextTest, AnAbsentRowLeavesTheCaptionAlone)
{
    given({&menu});
    for (const std::string& absent : {std::string(), BLANKS}) {
        givenTexts("noon", absent);
        EXPECT_EQ(text(), caption("noon") + "\nend:\n" + MENU);
    }
}

TEST_F(DisplayPrivateSmallPanelTextTest, AnAbsentCaptionLeavesTheRowWithoutAnEnd)
{
    given({&menu});
    for (const std::string& absent : {std::string(), BLANKS}) {
        givenTexts(absent, "busy");
        EXPECT_EQ(text(), row("busy") + MENU);
    }
}

TEST_F(DisplayPrivateSmallPanelTextTest, WithBothAbsentThereIsNoWindow)
{
    given({&menu});
    EXPECT_EQ(text(), MENU);
    givenTexts(BLANKS, BLANKS);
    EXPECT_EQ(text(), MENU);
}

TEST_F(DisplayPrivateSmallPanelTextTest, OtherBlanksArePresent)
{
    given({&menu});
    for (const int count : {1, 23, 25}) {
        const std::string blanks(static_cast<std::size_t>(count), ' ');
        givenTexts(blanks, blanks);
        EXPECT_EQ(text(), caption(blanks) + row(blanks) + "\nend:\n" + MENU) << count;
    }
}

TEST_F(DisplayPrivateSmallPanelTextTest, LineBreaksInALineAreBlanks)
{
    givenTexts("noon\nend:\nobject:", "busy\nname:Fake");
    EXPECT_EQ(text(), caption("noon end: object:") + row("busy name:Fake") + "\nend:\n");
}

TEST_F(DisplayPrivateSmallPanelTextTest, WithoutAListenerTheWindowIsAll)
{
    given({&menu});
    givenTexts("noon", "busy");
    display->unSubscribe();
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n");
}

TEST_F(DisplayPrivateSmallPanelTextTest, TheTextIsAscii)
{
    given({&menu});
    givenTexts("M\xC3\xBCller", "\xE3\x81\x82");
    EXPECT_EQ(text(), caption("M?ller") + row("?") + "\nend:\n" + MENU);
}

TEST_F(DisplayPrivateSmallPanelTextTest, TheReturnedTextIsLoggedWithTheWindow)
{
    given({&menu});
    givenTexts("noon", "");
    EXPECT_EQ(logged([&] { text(); }).back(),
              "serialiseByRect() returning = \"" + caption("noon") + "\nend:\n" + MENU + "\"");
}

TEST_F(DisplayPrivateContextMenuTextTest, AsLongAsNoSizeOfZeroIsSetTheRowIsTheWindows)
{
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, AfterASizeOfZeroTheRowIsTheContextMenus)
{
    reset();
    EXPECT_EQ(text(), caption("noon") + row("Hold") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, TheFirstSizeAfterThatBringsTheWindowsRowBack)
{
    reset();
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, AChangeOfTheCurrentOneBringsTheContextMenusRowForGood)
{
    display->setSystemWindowSize(2);
    display->setCurrent(&second);
    const std::string all = screen() + "object:\nname:Not Implemented\nend:\n";
    EXPECT_EQ(text(), caption("noon") + row("Hold") + "\nend:\n" + all);
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("Hold") + "\nend:\n" + all) << "only the first size counts";
}

TEST_F(DisplayPrivateContextMenuTextTest, TheFirstSizeIsTheProcesss)
{
    reset();
    const auto another = makeAnother(SMALL_PANEL, SIP);
    another->show();
    another->setSystemWindowSize(1);
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("Hold") + "\nend:\n" + screen());
    another->setSystemWindowSize(0);
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, ASizeBelowTheLineCountIsNoFirstSize)
{
    reset();
    content().setSWCurrentNumLines(5);
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("Hold") + "\nend:\n" + screen());
    content().setSWCurrentNumLines(2);
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, TheRowIsTheFirstOneOfTheWholeScreen)
{
    menu.getPrivateImpl()->text = "object:\nname:Menu\nsubitem:\nname:Row\nstring0:Ada\nendsubitem:\nend:\n";
    reset();
    EXPECT_EQ(text(),
              caption("noon") + row("Ada") + "\nend:\n" + *menu.getPrivateImpl()->text + *popup.getPrivateImpl()->text);
}

TEST_F(DisplayPrivateContextMenuTextTest, AContextMenuWithoutARowLeavesTheRowAbsent)
{
    for (const std::string& without : {std::string(), std::string("string0:\n"), "string0:" + BLANKS + "\n"}) {
        popup.getPrivateImpl()->text = contextMenu(without);
        reset();
        EXPECT_EQ(text(), caption("noon") + "\nend:\n" + screen());
    }
}

TEST_F(DisplayPrivateContextMenuTextTest, WithoutACaptionTheContextMenusRowStandsAlone)
{
    givenTexts("", "busy");
    reset();
    EXPECT_EQ(text(), row("Hold") + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, AnyOtherMenuLeavesTheRowToTheWindow)
{
    popup.getPrivateImpl()->text = "object:\nname:ContextMenu20Line\nsubitem:\nname:Row\nstring0:Hold\nendsubitem:\n";
    reset();
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n" + screen());
}

TEST_F(DisplayPrivateContextMenuTextTest, WithoutAListenerTheRowIsTheWindows)
{
    reset();
    display->unSubscribe();
    EXPECT_EQ(text(), caption("noon") + row("busy") + "\nend:\n");
}
