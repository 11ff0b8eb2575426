#include "host/lcd/Lcd.h"
#include "pictures/PictureTest.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <tuple>

namespace {

const std::vector<std::string> MENU{"Call log", "Contacts", "Settings"};

/// What becomes of characters that the toolkit cannot hold is part of the picture: the last row ends in one.
const std::vector<std::string> SCRIPTS{"Łódź, Ærø, Škoda, Åre", "Ελληνικά: Θεσσαλονίκη", "Русский: Екатеринбург",
                                       "שלום עולם 123",         "مرحبا بالعالم",         "你好 日本 한국 😀"};

const std::string LONG(200, 'W');

/// Every screen on every panel; the picture's name tells which.
class ListPictures : public PictureTest, public testing::WithParamInterface<host::Variant> {
protected:
    ListPictures() { start(GetParam()); }

    void expectScreen(const std::string& screen)
    {
        expectPicture(std::string(host::nameOf(GetParam())) + "-" + screen);
    }
};

TEST_P(ListPictures, FewRows)
{
    showList("Main menu", MENU);
    expectScreen("few-rows");
}

TEST_P(ListPictures, SelectionMovesDown)
{
    showList("Main menu", MENU);
    press(PK_DOWN);
    expectScreen("second-row");
}

TEST_P(ListPictures, NoTitle)
{
    showList("", rooms(9));
    press(PK_DOWN, 2);
    expectScreen("no-title");
}

TEST_P(ListPictures, EmptyList)
{
    showList("Call log", {});
    expectScreen("empty");
}

TEST_P(ListPictures, EmptiedListShowsNothingOfItsRows)
{
    KestrelListBox& list = showList("Call log", rooms(20));
    press(PK_DOWN, 9);
    list.clear();
    expectScreen("empty");
}

TEST_P(ListPictures, ManyRowsAtTheTop)
{
    showList("Rooms", rooms(20));
    expectScreen("many-top");
}

TEST_P(ListPictures, ManyRowsInTheMiddle)
{
    showList("Rooms", rooms(20));
    press(PK_DOWN, 12);
    press(PK_UP, 2);
    expectScreen("many-middle");
}

TEST_P(ListPictures, ManyRowsAtTheBottom)
{
    showList("Rooms", rooms(20));
    press(PK_DOWN, 25);
    expectScreen("many-bottom");
}

TEST_P(ListPictures, RowsThatGoTakeTheScrollBarAlong)
{
    KestrelListBox& list = showList("Rooms", rooms(20));
    press(PK_DOWN, 2);
    while (list.numItems() > 3)
        list.remove(list.itemAt(list.numItems() - 1));
    expectScreen("three-left");
}

TEST_P(ListPictures, LongTextsEndInAnEllipsis)
{
    showList(LONG, {"A name that is so long that nobody would read it to its end", LONG, "Short"});
    expectScreen("long-texts");
}

TEST_P(ListPictures, Scripts)
{
    KestrelListBox& list = showList("Languages", SCRIPTS);
    expectScreen("scripts-top");
    list.setCurrentRow(3);
    expectScreen("scripts-middle");
    list.setCurrentRow(5);
    expectScreen("scripts-bottom");
}

TEST_P(ListPictures, Exclusive)
{
    KestrelListBox& list = showList("Ringing tone", {"Loud", "Gentle", "Rising", "Silent"});
    list.setExclusive(true);
    press(PK_DOWN);
    expectScreen("exclusive");
}

TEST_P(ListPictures, BackArrow)
{
    showList("Settings", MENU).setBackArrow(true);
    expectScreen("back-arrow");
}

TEST_P(ListPictures, BackArrowWithoutTitle)
{
    showList("", MENU).setBackArrow(true);
    expectScreen("back-arrow-no-title");
}

TEST_P(ListPictures, NoHighlight)
{
    showList("Main menu", MENU).setSelectionHighlight(false);
    expectScreen("no-highlight");
}

TEST_P(ListPictures, ChangedRowIsPaintedAgain)
{
    KestrelListBox& list = showList("Main menu", MENU);
    expectScreen("few-rows");
    list.itemAt(0)->DataSet(text("Call log (3 new calls)"));
    expectScreen("changed-row");
}

TEST_P(ListPictures, PartialRepaintsLeaveWhatAFullOneWould)
{
    KestrelListBox& list = showList("Rooms", rooms(20));
    press(PK_DOWN, 13);
    list.remove(list.itemAt(4));
    list.insert(list.itemAt(0), 9);
    press(PK_UP, 3);
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    const host::Picture partly = lcd.picture();
    list.Invalidate();
    lcd.paint();
    EXPECT_EQ(partly.pixels, lcd.picture().pixels);
    EXPECT_EQ(partly.texts, lcd.picture().texts);
}

INSTANTIATE_TEST_SUITE_P(Panels, ListPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

} // namespace
