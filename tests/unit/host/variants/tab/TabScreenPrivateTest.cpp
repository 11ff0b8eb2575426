// What the user does on a tab screen, and how it looks as text.

#include "variants/tab/TabScreenPrivate.h"
#include "host/lcd/Geometry.h"
#include "host/widgets/tab/TabWindow.h"
#include "support/Dictionary.h"
#include "unit/host/variants/tab/TabScreenVariantTest.h"
#include "utilities/ICC.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class TabScreenPrivateTest : public test::TabScreenVariantTest {
protected:
    std::string shown() { return tabs->getPrivateImpl()->serialise(); }
};

TEST_P(TabScreenPrivateTest, FirstTabIsTheCurrentOneAndItsPageHasTheKeys)
{
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    open();
    EXPECT_TRUE(tabs->getPrivateImpl()->hideOldWidgetOnFocusGained());
    expectInPage(*all);
    EXPECT_EQ(widgetOf(*missed)->Parent(), nullptr);
}

TEST_P(TabScreenPrivateTest, TabThatIsToBeTheCurrentOneIs)
{
    List dialled(0);
    dialled.append("Dora");
    dialled.append("Emil");
    tabs->addTab("Dialled", &dialled, true);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 2);
    open();
    expectInPage(dialled);
    tabs->removeTab(&dialled);
}

TEST_P(TabScreenPrivateTest, PageHasTheScreenBelowTheBar)
{
    open();
    const PegRect& whole = window()->Area();
    const PegRect& page = widgetOf(*all)->Area();
    const int width = isSmall() ? 208 : GetParam() == host::Variant::NARROW ? 168 : 240;
    EXPECT_EQ(host::widthOf(whole), width);
    EXPECT_EQ(host::widthOf(page), width);
    EXPECT_EQ(page.top, host::TabBar::height());
    EXPECT_EQ(page.bottom, whole.bottom);
}

TEST_P(TabScreenPrivateTest, UpFromTheFirstRowReachesTheBar)
{
    open();
    press(PK_DOWN);
    press(PK_UP);
    EXPECT_EQ(gpPresent->Focus(), widgetOf(*all));
    press(PK_UP);
    expectInBar();
    press(PK_UP);
    expectInBar();
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(TabScreenPrivateTest, LeftAndRightInTheBarChangeTheTabAndStopAtTheLast)
{
    open();
    press(PK_UP);
    press(PK_RIGHT);
    EXPECT_EQ(tabs->currentTab(), missed.get());
    EXPECT_EQ(widgetOf(*missed)->Parent(), window());
    EXPECT_EQ(widgetOf(*all)->Parent(), nullptr);
    expectInBar();
    press(PK_RIGHT);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 1);
    press(PK_LEFT);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    EXPECT_THAT(raised, ElementsAre(TabScreen::TABFWD_COMMAND(), TabScreen::TABBACK_COMMAND()));
}

TEST_P(TabScreenPrivateTest, DownAndOkEnterThePage)
{
    open();
    for (const int key : {PK_DOWN, PK_OK}) {
        all->setSelectedIndex(0);
        press(PK_UP);
        expectInBar();
        press(key);
        expectInPage(*all);
    }
    EXPECT_THAT(raised, ElementsAre(TabScreen::OK(), TabScreen::OK()));
}

TEST_P(TabScreenPrivateTest, CommandsAreRaisedForTheFacade)
{
    EXPECT_CALL(listener, postCommandAction(TabScreen::OK(), tabs.get()));
    open();
    press(PK_UP);
    press(PK_OK);
}

TEST_P(TabScreenPrivateTest, LeftFromTheFirstTabGoesBack)
{
    open();
    press(PK_UP);
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre(TabScreen::BACK_COMMAND()));
    EXPECT_EQ(display.getCurrent(), tabs.get());
}

TEST_P(TabScreenPrivateTest, OnTwoLinesThereIsAWayBackWhereItIsAskedFor)
{
    TabScreen other(TabScreen::NO_ICON, false);
    other.addCommandListener(&listener);
    other.addTab("All", nullptr, false);
    display.setCurrent(&other);
    press(PK_LEFT);
    EXPECT_EQ(raised.size(), isSmall() ? 0u : 1u);
    display.setCurrent(nullptr);
}

TEST_P(TabScreenPrivateTest, RemovedListenerHearsNothing)
{
    tabs->removeCommandListener(&listener);
    tabs->removeCommandListener(nullptr);
    tabs->addCommandListener(nullptr);
    open();
    press(PK_UP);
    press(PK_LEFT);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(TabScreenPrivateTest, InALanguageReadFromTheRightTheKeysChangeSides)
{
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("ar"));
    open();
    press(PK_UP);
    press(PK_RIGHT);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    press(PK_LEFT);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 1);
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre(TabScreen::TABFWD_COMMAND(), TabScreen::BACK_COMMAND()));
}

TEST_P(TabScreenPrivateTest, NextTabGoesRound)
{
    open();
    tabs->nextTab();
    EXPECT_EQ(tabs->getCurrentTabIndex(), 1);
    tabs->nextTab();
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    expectInPage(*all);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(TabScreenPrivateTest, IndexOutsideTheTabsIsIgnored)
{
    open();
    for (const int index : {-1, 2}) {
        tabs->setCurrentTabIndex(index);
        tabs->setTitleForTabAtIndex(index, "Nothing");
        tabs->setCurrentDisplayableForTabAtIndex(index, nullptr);
        EXPECT_EQ(tabs->getTitleForTabAtIndex(index), "");
    }
    expectInPage(*all);
    EXPECT_THAT(shown(), Not(HasSubstr("Nothing")));
}

TEST_P(TabScreenPrivateTest, TextNamesTheTabsAndHoldsThePagesText)
{
    open();
    EXPECT_EQ(shown(), "object:\nname:TabScreen\ncaption:All\n"
                       "subitem:\nname:Tab\nstring0:All\nendsubitem:\n"
                       "subitem:\nname:Tab\nstring0:Missed\nendsubitem:\nend:\n" +
                           all->getPrivateImpl()->serialise());
    EXPECT_THAT(all->getPrivateImpl()->serialise(), HasSubstr("string0:Ada"));
}

TEST_P(TabScreenPrivateTest, TextIsOfWhatCanBeSeen)
{
    open();
    const PegRect& page = widgetOf(*all)->Area();
    const auto asText = [&](const DisplayAPIUtils::Rect& part) { return tabs->getPrivateImpl()->serialise({part}); };
    EXPECT_EQ(asText({0, page.top, 10, 1}),
              "object:\nname:TabScreen\ncaption:All\nend:\n" +
                  all->getPrivateImpl()->serialise({DisplayAPIUtils::Rect(0, page.top, 10, 1)}));
    EXPECT_EQ(asText({0, page.bottom + 1, 10, 1}), "");
}

TEST_P(TabScreenPrivateTest, TitleIsSetAndAsked)
{
    tabs->setTitleForTabAtIndex(1, "Missed (2)");
    EXPECT_EQ(tabs->getTitleForTabAtIndex(1), "Missed (2)");
    open();
    EXPECT_THAT(shown(), HasSubstr("string0:Missed (2)\n"));
}

TEST_P(TabScreenPrivateTest, TitlesFollowTheLanguage)
{
    test::Dictionary translator;
    TranslationInfo title("All", &translator), other("New", &translator);
    tabs->setTitleForTabAtIndex(0, &title);
    tabs->addTab(&other, nullptr, false);
    open();
    EXPECT_THAT(shown(), HasSubstr("caption:en:All\n"));
    translator.language = "de:";
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de"));
    auto* const bar = &dynamic_cast<host::TabWindow*>(window())->bar();
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(bar->title(0)), "de:All");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(bar->title(2)), "de:New");
    translator.language = "en:";
    tabs->localeChanged("en_GB");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(bar->title(0)), "en:All");
    EXPECT_EQ(tabs->getTitleForTabAtIndex(0), "en:All");
    tabs->cleanup();
}

TEST_P(TabScreenPrivateTest, StatusLinesStandAboveTheBarOfTheFullPanel)
{
    open();
    display.setSystemWindowText(0, "Forwarded");
    display.setSystemWindowText(1, "2 missed");
    display.setSystemWindowSize(2);
    EXPECT_EQ(shown().find("subitem:\nname:SystemWindow\nstring0:Forwarded\nstring1:2 missed\nendsubitem:\n") !=
                  std::string::npos,
              !isSmall());
    EXPECT_EQ(widgetOf(*all)->Area().top, host::TabBar::height() + (isSmall() ? 0 : 33));
    display.setSystemWindowSize(0);
    EXPECT_EQ(widgetOf(*all)->Area().top, host::TabBar::height());
    expectInPage(*all);
}

TEST_P(TabScreenPrivateTest, ManyStatusLinesLeaveRoomForThePage)
{
    open();
    for (int line = 0; line < 6; ++line)
        display.setSystemWindowText(line, "line");
    display.setSystemWindowSize(6);
    EXPECT_GE(host::heightOf(widgetOf(*all)->Area()), isSmall() ? 21 : 40);
}

INSTANTIATE_ON_PANELS(TabScreenPrivateTest);

} // namespace
