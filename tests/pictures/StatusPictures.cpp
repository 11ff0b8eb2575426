#include "pictures/StatusScreens.h"
#include "widgets/KestrelListBox.h"
#include "widgets/StatusMessage.h"

namespace {

using StatusPictures = StatusScreens;

TEST_P(StatusPictures, Lines)
{
    showSample(ENGLISH);
    showLines(ENGLISH, 2);
    expectScreen("status-lines");
}

TEST_P(StatusPictures, OneLine)
{
    showSample(ENGLISH);
    showLines(ENGLISH, 1);
    expectScreen("status-line");
}

TEST_P(StatusPictures, SeparatorIsOnTheSideOfTheScreen)
{
    showSample(ENGLISH);
    showLines(ENGLISH, 1).setSystemWindowTop(isTwoLines() ? 21 : 113, true, true);
    expectScreen("status-line-below");
}

TEST_P(StatusPictures, PopupOfTwoLines)
{
    showList("Rooms", rooms(9));
    showPopup(ENGLISH, 2);
    expectScreen("popup");
}

TEST_P(StatusPictures, PopupOfOneLine)
{
    showList("Rooms", rooms(9));
    showPopup(ENGLISH, 1);
    expectScreen("popup-line");
}

TEST_P(StatusPictures, PopupThatIsTakenDownLeavesNothing)
{
    showSample(ENGLISH);
    SystemWindow& window = showPopup(ENGLISH, 2);
    host::Lcd::current()->paint();
    window.setSystemWindowText(0, " ");
    window.setSystemWindowText(1, "                        ");
    expectScreen("no-popup");
}

TEST_P(StatusPictures, TimerTakesTheClocksPlace)
{
    showLines(ENGLISH, 1).setTimer("100:00:00");
    expectScreen("call-timer");
}

TEST_P(StatusPictures, LongTexts)
{
    Sample sample = ENGLISH;
    sample.caption = "A caption that is so long that it meets the clock and ends there";
    sample.line = "A line that is so long that it leaves the panel, whichever it is";
    showLines(sample, 2);
    expectScreen("long-status-lines");
}

TEST_P(StatusPictures, LongPopup)
{
    Sample sample = ENGLISH;
    sample.caption = "A caption that is so long that nobody would read it";
    sample.line = "A line that is so long that it leaves the popup";
    showPopup(sample, 2);
    expectScreen("long-popup");
}

TEST_P(StatusPictures, Message)
{
    showList("Rooms", rooms(9));
    gpPresent->Add(new StatusMessage("The number has been copied", 1000));
    expectScreen("message");
}

TEST_P(StatusPictures, LongMessage)
{
    showList("Rooms", rooms(9));
    gpPresent->Add(new StatusMessage("A message that is so long that no panel of this house has room for it", 1000));
    expectScreen("long-message");
}

TEST_P(StatusPictures, Languages)
{
    for (const Sample& sample : LANGUAGES) {
        KestrelListBox& list = showSample(sample);
        SystemWindow& window = showLines(sample, 2);
        expectScreen(std::string("status-lines-") + sample.locale);
        delete &window;
        delete &list;
    }
}

TEST_P(StatusPictures, PopupLanguages)
{
    for (const Sample& sample : LANGUAGES) {
        KestrelListBox& list = showSample(sample);
        SystemWindow& window = showPopup(sample, 2);
        expectScreen(std::string("popup-") + sample.locale);
        delete &window;
        delete &list;
    }
}

TEST_P(StatusPictures, MessageLanguages)
{
    for (const Sample& sample : LANGUAGES) {
        KestrelListBox& list = showSample(sample);
        auto* message = new StatusMessage(sample.message, 1000);
        gpPresent->Add(message);
        expectScreen(std::string("message-") + sample.locale);
        delete message;
        delete &list;
    }
}

TEST_P(StatusPictures, MirroredList)
{
    KestrelListBox& list = showSample(LANGUAGES[3]);
    list.setExclusive(true);
    list.setBackArrow(true);
    press(PK_DOWN);
    expectScreen("mirrored-exclusive");
}

TEST_P(StatusPictures, MirroredLongList)
{
    mApplication.setLocale(text("he"));
    showList("חדרים", rooms(20));
    press(PK_DOWN, 9);
    expectScreen("mirrored-many");
}

INSTANTIATE_TEST_SUITE_P(Panels, StatusPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

} // namespace
