#include "pictures/StatusScreens.h"
#include "widgets/KestrelListBoxWithTitle.h"

namespace {

/// Lists that show the status lines themselves: those of the graphic panels.
class ListStatusPictures : public StatusScreens {
protected:
    ListStatusPictures()
    {
        mTime.setTime(14, 5, 0);
        mTime.showTime(true);
    }

    KestrelListBoxWithTitle& withStatus(KestrelListBox& list, const Sample& sample, int lines)
    {
        auto& titled = static_cast<KestrelListBoxWithTitle&>(list);
        titled.setSystemWindowText(text(sample.caption), 0);
        titled.setSystemWindowText(text(sample.line), 1);
        titled.setSystemWindowLines(lines);
        return titled;
    }

    SystemWindow mTime; ///< whose time the lists show
};

TEST_P(ListStatusPictures, Languages)
{
    for (const Sample& sample : LANGUAGES) {
        KestrelListBox& list = withStatus(showSample(sample), sample, 2);
        expectScreen(std::string("list-status-") + sample.locale);
        delete &list;
    }
}

TEST_P(ListStatusPictures, OneLineAndManyRows)
{
    withStatus(showList("Rooms", rooms(20)), ENGLISH, 1);
    press(PK_DOWN, 7);
    expectScreen("list-status-line");
}

TEST_P(ListStatusPictures, NoTitle)
{
    withStatus(showList("", rooms(20)), ENGLISH, 1);
    expectScreen("list-status-no-title");
}

TEST_P(ListStatusPictures, CallTimer)
{
    mTime.setTimer("00:42");
    withStatus(showList("Call", rooms(3)), ENGLISH, 1);
    expectScreen("list-status-timer");
}

TEST_P(ListStatusPictures, TwelveHours)
{
    mApplication.setTimeFormat(text("12h"));
    withStatus(showList("Call", rooms(3)), ENGLISH, 1);
    expectScreen("list-status-twelve-hours");
}

TEST_P(ListStatusPictures, SixLines)
{
    KestrelListBoxWithTitle& list = withStatus(showList("Rooms", rooms(20)), ENGLISH, 6);
    for (int line = 2; line < 6; ++line)
        list.setSystemWindowText(text("Line " + std::to_string(line)), line);
    expectScreen("list-status-six");
}

TEST_P(ListStatusPictures, PlaceOfATicker)
{
    withStatus(showList("Rooms", rooms(20)), ENGLISH, 1).setTickerShown(true);
    expectScreen("list-status-ticker");
}

TEST_P(ListStatusPictures, PartialRepaintsLeaveWhatAFullOneWould)
{
    KestrelListBoxWithTitle& list = withStatus(showList("Rooms", rooms(20)), ENGLISH, 2);
    press(PK_DOWN, 9);
    mTime.setTimer("00:42");
    list.setSystemWindowText(text("Another line"), 1);
    press(PK_UP, 4);
    list.setSystemWindowLines(1);
    press(PK_DOWN, 2);
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    const host::Picture partly = lcd.picture();
    list.Invalidate();
    lcd.paint();
    EXPECT_EQ(partly.pixels, lcd.picture().pixels);
    EXPECT_EQ(partly.texts, lcd.picture().texts);
}

INSTANTIATE_TEST_SUITE_P(Panels, ListStatusPictures, testing::Values(host::Variant::PLAIN, host::Variant::NARROW),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

} // namespace
