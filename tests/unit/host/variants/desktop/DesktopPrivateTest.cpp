#include "DisplayAPI/Desktop.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/DesktopPrivateIfc.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "host/input/KeyLamps.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Png.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/LogLines.h"
#include "support/TemporaryFolder.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "utilities/Rect.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

using DisplayAPI::Desktop;
using DisplayAPI::MenuCommand;
using host::KeyLamps;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr int MINUTE = 60'000;
constexpr int TURN = 10'000;

class Days : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return prefix + key; }
    std::string prefix;
};

class Observer : public DisplayAPI::DisplayEventIfc {
public:
    void displayChanged(std::string) override { ++changes; }
    int changes = 0;
};

/// A desktop on the real private sides. The test's thread is the GUI thread.
class DesktopPrivateTest : public testing::TestWithParam<host::Variant> {
protected:
    DesktopPrivateTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto*) {
            raised.push_back(dynamic_cast<MenuCommand&>(*command).getId());
        });
        desktop->addCommandListener(&listener);
        display.show();
        display.setCurrent(desktop.get());
        display.subscribe(&observer);
        raised.clear();
    }

    ~DesktopPrivateTest() override
    {
        display.unSubscribe();
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }
    std::string shown() const { return desktop->getPrivateImpl()->serialise(); }
    PegThing& widget() const { return *desktop->getPrivateImpl()->getWidget(); }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    /// The panel, without what has been dirty before.
    static host::Picture painted()
    {
        host::Lcd::current()->paint();
        return host::Lcd::current()->picture();
    }

    /// A picture that is all of one level.
    std::string pictureOf(std::uint8_t level, const char* name) const
    {
        const std::string path = folder / name;
        EXPECT_EQ(
            host::writePng({.width = 240, .height = 128, .pixels = std::vector<std::uint8_t>(240 * 128, level)}, path),
            "");
        return path;
    }

    test::VirtualTime time;
    test::OnPanel gui{GetParam()};
    const test::TemporaryFolder folder;
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    DisplayAPI::List list{0};
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<unsigned int> raised;
    Observer observer;
    std::unique_ptr<Desktop> desktop = std::make_unique<Desktop>();
};

TEST_P(DesktopPrivateTest, IsAsWideAsTheDisplay)
{
    EXPECT_EQ(widget().Area(), (PegRect{0, 0, static_cast<std::int16_t>(host::panelSize().width - 1),
                                        static_cast<std::int16_t>(host::panelSize().height - 1)}));
    EXPECT_EQ(display.getCurrent(), desktop.get());
}

TEST_P(DesktopPrivateTest, SaysItsTexts)
{
    desktop->setStatusBarMode("Away", "until 3");
    desktop->setTime(9, 41, 0);
    desktop->setDate(9, 3, 2026);
    desktop->setExtLabelText("4711");
    desktop->setLogoText("Nord");
    desktop->setFPKLabel(1, "Ada", true, false);
    const auto item = [](const std::string& name, const std::string& text) {
        return "subitem:\nname:" + name + "\nstring0:" + text + "\nendsubitem:\n";
    };
    EXPECT_EQ(shown(), "object:\nname:Desktop\ncaption:Away\n" + item("DesktopText", "until 3") +
                           item("DesktopText", "09:41") + item("DesktopText", "09.03.2026") +
                           item("DesktopText", "4711") + item("DesktopText", "Nord") + item("DesktopKey", "Ada") +
                           "end:\n");
}

TEST_P(DesktopPrivateTest, SaysOnlyWhatCanBeSeen)
{
    desktop->setExtLabelText("4711");
    desktop->setFPKLabel(0, "Ada", true, false);
    const int width = host::panelSize().width;
    const auto right = desktop->getPrivateImpl()->serialise({DisplayAPIUtils::Rect(width - 1, 0, 1, 128)});
    EXPECT_THAT(right, HasSubstr("Ada"));
    EXPECT_THAT(right, Not(HasSubstr("4711")));
    EXPECT_EQ(desktop->getPrivateImpl()->serialise({}), "");
}

TEST_P(DesktopPrivateTest, TellsOfWhatLooksDifferentAlone)
{
    desktop->setLogoText("Nord");
    EXPECT_EQ(observer.changes, 1);
    desktop->setLogoText("Nord");
    EXPECT_EQ(observer.changes, 1);
    desktop->displayDNDIcon(true);
    EXPECT_EQ(observer.changes, 2);
}

TEST_P(DesktopPrivateTest, IconsAreSeenAndPainted)
{
    const std::vector<void (Desktop::*)(bool)> icons{&Desktop::displayKeyLockIcon, &Desktop::displayDNDIcon,
                                                     &Desktop::displayRingerOffIcon, &Desktop::displayMaintenanceIcon,
                                                     &Desktop::displayCallbacksIcon};
    auto before = painted().pixels;
    for (const auto icon : icons) {
        (*desktop.*icon)(true);
        const auto after = painted().pixels;
        EXPECT_NE(after, before);
        before = after;
    }
    desktop->displayMobileUserIcon(true, 7);
    EXPECT_NE(painted().pixels, before);
    for (const auto icon : icons)
        (*desktop.*icon)(false);
    desktop->displayMobileUserIcon(false, 7);
    const auto cleared = painted().pixels;
    widget().Invalidate();
    EXPECT_EQ(painted().pixels, cleared);
}

TEST_P(DesktopPrivateTest, OneIconAfterTheTimeAtMost)
{
    const auto bare = painted().pixels;
    desktop->setSBPostTimeIcon(0, true);
    desktop->setSBPostTimeIcon(5, true);
    EXPECT_EQ(painted().pixels, bare);
    desktop->setSBPostTimeIcon(1, true);
    const auto letter = painted().pixels;
    EXPECT_NE(letter, bare);
    desktop->setSBPostTimeIcon(2, false);
    EXPECT_EQ(painted().pixels, letter);
    desktop->setSBPostTimeIcon(4, true);
    EXPECT_NE(painted().pixels, letter);
    desktop->setSBPostTimeIcon(4, false);
    EXPECT_EQ(painted().pixels, bare);
}

TEST_P(DesktopPrivateTest, ArrowStandsBeforeTheExtension)
{
    desktop->setExtLabelText("4711");
    const auto plain = painted().pixels;
    desktop->setExtensionNumberAndArrowState(true);
    EXPECT_NE(painted().pixels, plain);
    desktop->setExtensionNumberAndArrowState(false);
    EXPECT_EQ(painted().pixels, plain);
}

// The mode

TEST_P(DesktopPrivateTest, ModeGoesBackToTheOneItHasReplaced)
{
    EXPECT_EQ(desktop->getSBModeText(), "");
    desktop->setStatusBarMode("Away", "until 3");
    desktop->setStatusBarMode("Menu", "");
    desktop->setStatusBarMode("Menu", "open");
    desktop->setStatusBarModePrev("Away");
    EXPECT_EQ(desktop->getSBModeText(), "Menu");
    desktop->setStatusBarModePrev("Menu");
    EXPECT_EQ(desktop->getSBModeText(), "Away");
    EXPECT_THAT(shown(), HasSubstr("caption:Away\n"));
    EXPECT_THAT(shown(), HasSubstr("until 3"));
    desktop->setStatusBarModePrev("Away");
    EXPECT_EQ(desktop->getSBModeText(), "");
}

// The clock

TEST_P(DesktopPrivateTest, ShowsNoTimeBeforeItIsSet)
{
    EXPECT_EQ(shown(), "object:\nname:Desktop\ncaption:\nend:\n");
    EXPECT_FALSE(test::VirtualTime::isTimerRunning());
}

TEST_P(DesktopPrivateTest, ClockGoesOnAndTells)
{
    desktop->setTime(9, 41, 30);
    observer.changes = 0;
    time.pass(29'999);
    EXPECT_THAT(shown(), HasSubstr("09:41"));
    time.pass(1);
    EXPECT_THAT(shown(), HasSubstr("09:42"));
    EXPECT_EQ(observer.changes, 1);
}

TEST_P(DesktopPrivateTest, ClockPaintsNothingElse)
{
    desktop->setTime(9, 41, 0);
    desktop->setStatusBarMode("Away", "");
    desktop->setLogoText("Nord");
    const auto before = painted();
    time.pass(MINUTE);
    const auto after = painted();
    EXPECT_EQ(after.frame, before.frame + 1);
    PegRect changed{32000, 32000, -1, -1};
    for (int i = 0; i < before.width * before.height; ++i) {
        if (before.pixels[static_cast<std::size_t>(i)] == after.pixels[static_cast<std::size_t>(i)])
            continue;
        changed.left = std::min<std::int16_t>(changed.left, static_cast<std::int16_t>(i % before.width));
        changed.bottom = std::max<std::int16_t>(changed.bottom, static_cast<std::int16_t>(i / before.width));
    }
    EXPECT_LT(changed.bottom, 16);
    EXPECT_GT(changed.left, isSmall() ? 72 : before.width - 78);
    time.pass(30'000);
    EXPECT_FALSE(host::Lcd::current()->isDirty());
}

TEST_P(DesktopPrivateTest, ClockStandsStillWhileNobodySeesIt)
{
    desktop->setTime(9, 41, 0);
    display.setCurrent(&list);
    time.pass(1);
    EXPECT_FALSE(test::VirtualTime::isTimerRunning());
    time.pass(3 * MINUTE);
    display.setCurrent(desktop.get());
    EXPECT_THAT(shown(), HasSubstr("09:44"));
}

TEST_P(DesktopPrivateTest, ZoneMovesTimeAndDate)
{
    desktop->setTime(23, 30, 0);
    desktop->setDate(28, 2, 2028);
    desktop->setTimeZoneOffset(60);
    EXPECT_THAT(shown(), HasSubstr("00:30"));
    EXPECT_THAT(shown(), HasSubstr("29.02.2028"));
    desktop->setTimeZoneOffset(-24 * 60);
    EXPECT_THAT(shown(), HasSubstr("23:30"));
    EXPECT_THAT(shown(), HasSubstr("27.02.2028"));
}

TEST_P(DesktopPrivateTest, HoursCountAsTheApplicationWantsUntilItIsSaid)
{
    desktop->setTime(14, 5, 0);
    EXPECT_THAT(shown(), HasSubstr("14:05"));
    display.timeFormatChanged("12h");
    EXPECT_THAT(shown(), HasSubstr("2:05 PM"));
    desktop->set12HourClockMode(false);
    EXPECT_THAT(shown(), HasSubstr("14:05"));
    desktop->set12HourClockMode(true);
    display.timeFormatChanged("24h");
    EXPECT_THAT(shown(), HasSubstr("2:05 PM"));
}

TEST_P(DesktopPrivateTest, DateFollowsTheFormat)
{
    desktop->setDate(9, 3, 2026);
    display.dateFormatChanged("yyyy-mm-dd");
    EXPECT_THAT(shown(), HasSubstr("2026-03-09"));
}

TEST_P(DesktopPrivateTest, DaysAreTheTranslators)
{
    Days days;
    desktop->setDate(9, 3, 2026);
    desktop->setTime(23, 59, 0);
    desktop->setDayLabelText(&days);
    EXPECT_THAT(shown(), HasSubstr("Monday 09.03.2026"));
    time.pass(MINUTE);
    EXPECT_THAT(shown(), HasSubstr("Tuesday 10.03.2026"));
    days.prefix = "my ";
    EXPECT_THAT(shown(), Not(HasSubstr("my")));
    desktop->setStatusBarDayLabels();
    EXPECT_THAT(shown(), HasSubstr("my Tuesday 10.03.2026"));
    days.prefix = "your ";
    display.localeChanged("en_US");
    EXPECT_THAT(shown(), HasSubstr("your Tuesday 10.03.2026"));
    desktop->setDayLabelText(nullptr);
    EXPECT_THAT(shown(), HasSubstr("string0:10.03.2026"));
}

// The keys

TEST_P(DesktopPrivateTest, KeysHaveTwoLevels)
{
    desktop->setFPKLabel(0, "Ada", true, false);
    desktop->setFPKLabel(0, "Bert", false, true);
    EXPECT_EQ(desktop->getFPKLabel(0), "Ada");
    EXPECT_TRUE(desktop->getFPKEnabled(0, false));
    EXPECT_FALSE(desktop->getFPKEnabled(0, true));
    desktop->setShifted(true);
    EXPECT_EQ(desktop->getFPKLabel(0), "Bert");
    EXPECT_THAT(shown(), HasSubstr("Bert"));
    EXPECT_THAT(shown(), Not(HasSubstr("Ada")));
    desktop->setFPKEnabled(0, true, true);
    EXPECT_TRUE(desktop->getFPKEnabled(0, true));
    EXPECT_EQ(desktop->getFPKLabel(0), "Bert");
}

TEST_P(DesktopPrivateTest, NumbersThatNameNoKeyAreIgnored)
{
    const int keys = desktop->getNumberOfFPKLabels();
    EXPECT_EQ(keys, isSmall() ? 3 : 5);
    const std::string before = shown();
    for (const int key : {-1, keys, 0x7FFFFFFF}) {
        desktop->setFPKLabel(key, "Ada", true, false);
        desktop->setFPKEnabled(key, true, false);
        desktop->setFPKHighlight(key, true);
        EXPECT_EQ(desktop->getFPKLabel(key), "");
        EXPECT_FALSE(desktop->getFPKEnabled(key, false));
    }
    EXPECT_EQ(shown(), before);
}

TEST_P(DesktopPrivateTest, PressedKeysAreReported)
{
    for (const int key : {int(PK_FPK1), PK_FPK1 + 1, int(PK_0), int(PK_STAR), int(PK_HASH), int(PK_OK), int(PK_UP),
                          int(PK_DOWN), int(PK_LEFT), int(PK_RIGHT)})
        press(key);
    EXPECT_THAT(raised, ElementsAre(Desktop::FPK, Desktop::FPK + 1, '0', '*', '#', Desktop::OK_KEY, Desktop::UP_KEY,
                                    Desktop::DOWN_KEY, Desktop::LEFT_KEY, Desktop::RIGHT_KEY));
}

TEST_P(DesktopPrivateTest, KeysThatAreNotThereOrNotEnabledRaiseNothing)
{
    press(PK_FPK1 + desktop->getNumberOfFPKLabels());
    press(PK_FPK_LAST);
    press(PK_HOOK);
    desktop->setFPKEnabled(0, false, false);
    press(PK_FPK1);
    EXPECT_THAT(raised, IsEmpty());
    desktop->setShifted(true);
    press(PK_FPK1);
    EXPECT_THAT(raised, ElementsAre(Desktop::FPK));
}

TEST_P(DesktopPrivateTest, LampsAreTheHighlights)
{
    desktop->setFPKHighlight(1, true);
    EXPECT_THAT(KeyLamps::current(), SizeIs(desktop->getNumberOfFPKLabels()));
    EXPECT_TRUE(KeyLamps::current()[1]);
    desktop->setFPKHighlight(1, false);
    EXPECT_THAT(KeyLamps::current(), Each(false));
    desktop.reset();
    EXPECT_THAT(KeyLamps::current(), IsEmpty());
}

TEST_P(DesktopPrivateTest, LeavingTheScreenRaisesTheHiddenCommand)
{
    display.setCurrent(&list);
    time.pass(1);
    EXPECT_THAT(raised, ElementsAre(Desktop::HIDDEN_COMMAND()->getId()));
}

TEST_P(DesktopPrivateTest, PopupThatComesAndGoesLeavesItOnTheScreen)
{
    DisplayAPI::ContextMenu menu(false);
    display.setCurrent(&menu);
    time.pass(1);
    menu.dismiss();
    time.pass(1);
    EXPECT_EQ(display.getCurrent(), desktop.get());
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(DesktopPrivateTest, ShowBringsItToItsDisplay)
{
    display.setCurrent(&list);
    desktop->show();
    EXPECT_EQ(display.getCurrent(), desktop.get());
    Desktop other;
    other.show();
    EXPECT_EQ(display.getCurrent(), &other);
}

// The screensaver

TEST_P(DesktopPrivateTest, AnyKeyEndsTheScreensaverAndDoesNothingElse)
{
    for (const int key : {int(PK_OK), int(PK_HOOK), int(PK_VOLUME_UP), int(PK_FPK1), PK_FPK1 + 9}) {
        desktop->screensaverStart();
        EXPECT_EQ(shown(), "object:\nname:Desktop\nend:\n");
        press(key);
        EXPECT_THAT(std::exchange(raised, {}), ElementsAre(Desktop::SCREENSAVER_ENDED)) << key;
        EXPECT_THAT(shown(), HasSubstr("caption"));
    }
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre(Desktop::OK_KEY));
}

TEST_P(DesktopPrivateTest, ScreensaverThatTheApplicationStopsRaisesNothing)
{
    desktop->screensaverStart();
    desktop->screensaverStop();
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(DesktopPrivateTest, PicturesComeInTurn)
{
    std::list<std::string> paths{pictureOf(3, "dark.png"), pictureOf(1, "light.png")};
    desktop->screensaverSetImages(&paths);
    paths.clear();
    desktop->screensaverStart();
    const std::size_t middle = static_cast<std::size_t>(host::panelSize().width) * 20 + 100;
    EXPECT_EQ(painted().pixels[middle], 3);
    time.pass(TURN);
    EXPECT_EQ(painted().pixels[middle], 1);
    time.pass(TURN);
    EXPECT_EQ(painted().pixels[middle], 3);
    EXPECT_THAT(painted().texts, IsEmpty());
    desktop->screensaverStop();
    EXPECT_FALSE(test::VirtualTime::isTimerRunning());
}

TEST_P(DesktopPrivateTest, SettingTheTimeDoesNotHoldThePicture)
{
    std::list<std::string> paths{pictureOf(3, "dark.png"), pictureOf(1, "light.png")};
    desktop->screensaverSetImages(&paths);
    desktop->screensaverStart();
    for (int second = 5; second <= 10; second += 5) {
        desktop->setTime(9, 41, second);
        time.pass(TURN / 2);
    }
    EXPECT_EQ(painted().pixels[static_cast<std::size_t>(host::panelSize().width) * 20 + 100], 1);
}

TEST_P(DesktopPrivateTest, MissingPicturesLeaveThePanelBareAndAreNamedOnce)
{
    const host::LogCapture log;
    std::list<std::string> paths{folder / "gone.png", pictureOf(3, "dark.png")};
    desktop->screensaverSetImages(&paths);
    desktop->screensaverStart();
    EXPECT_THAT(painted().pixels, Each(0));
    for (int turn = 0; turn < 4; ++turn) {
        time.pass(TURN);
        painted();
    }
    ASSERT_THAT(test::linesOf(log, "host::PictureFile"), SizeIs(1));
    EXPECT_THAT(test::linesOf(log, "host::PictureFile").front().text, HasSubstr("gone.png"));
}

TEST_P(DesktopPrivateTest, ScreensaverWithoutPicturesIsBareAndCostsNothing)
{
    desktop->setTime(9, 41, 0);
    desktop->screensaverSetImages(nullptr);
    desktop->screensaverStart();
    EXPECT_THAT(painted().pixels, Each(0));
    EXPECT_FALSE(test::VirtualTime::isTimerRunning());
    desktop->setLogoText("Nord");
    EXPECT_FALSE(host::Lcd::current()->isDirty());
    time.pass(MINUTE);
    desktop->screensaverStop();
    EXPECT_THAT(shown(), HasSubstr("09:42"));
}

TEST_P(DesktopPrivateTest, SetsNothingOnceItsWidgetIsGone)
{
    display.setCurrent(nullptr);
    auto& side = dynamic_cast<DisplayAPI::DesktopPrivateIfc&>(*desktop->getPrivateImpl());
    side.releaseOwnership();
    delete side.getWidget();
    desktop->setLogoText("Nord");
    desktop->setStatusBarMode("Away", "");
    desktop->setTime(9, 41, 0);
    desktop->setFPKLabel(0, "Ada", true, false);
    desktop->setFPKHighlight(0, true);
    desktop->setSBPostTimeIcon(1, true);
    desktop->displayDNDIcon(true);
    desktop->setDayLabelText(nullptr);
    desktop->screensaverStart();
    EXPECT_EQ(desktop->getFPKLabel(0), "");
    EXPECT_EQ(shown(), "");
}

INSTANTIATE_ON_PANELS(DesktopPrivateTest);

} // namespace
