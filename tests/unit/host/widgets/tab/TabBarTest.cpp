#include "host/widgets/tab/TabBar.h"

#include "host/lcd/Geometry.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

using host::TabBar;
using test::press;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class TabBarTest : public testing::Test {
protected:
    TabBarTest()
    {
        bar.setMessageTarget(&listener);
        bar.Resize(host::rectAt(0, 0, 240, TabBar::height()));
    }

    void fill(const std::vector<std::string>& titles)
    {
        for (const std::string& title : titles)
            bar.append(test::peg(title));
        bar.setCurrent(0);
    }

    /// The numbers of the tabs in sight.
    std::vector<int> inSight() const
    {
        std::vector<int> shown;
        for (int tab = 0; tab < bar.count(); ++tab)
            if (!host::isEmpty(bar.tabArea(tab)))
                shown.push_back(tab);
        return shown;
    }

    test::StartedToolkit toolkit;
    test::Listener listener;
    TabBar bar{&host::icons::HANDSET, true};
};

TEST_F(TabBarTest, HasNoCurrentTabAtFirst)
{
    EXPECT_EQ(bar.current(), -1);
    EXPECT_FALSE(press(bar, "v"));
    EXPECT_FALSE(press(bar, "!"));
    EXPECT_FALSE(press(bar, ">"));
    EXPECT_TRUE(host::isEmpty(bar.tabArea(0)));
}

TEST_F(TabBarTest, TabsStandSideBySideInsideTheBar)
{
    fill({"All", "Missed"});
    EXPECT_EQ(bar.tabArea(0).right + 1, bar.tabArea(1).left);
    EXPECT_GT(bar.tabArea(0).left, bar.Area().left);
    EXPECT_TRUE(host::contains(bar.Area(), bar.tabArea(1)));
}

TEST_F(TabBarTest, KeysMoveEnterAndGoBack)
{
    fill({"All", "Missed"});
    EXPECT_TRUE(press(bar, ">"));
    EXPECT_FALSE(press(bar, ">"));
    EXPECT_TRUE(press(bar, "v!<<"));
    EXPECT_FALSE(press(bar, "^"));
    EXPECT_FALSE(press(bar, "5"));
    EXPECT_THAT(listener.heard, ElementsAre(Pair(PM_CURRENT_CHANGED, 1), Pair(PM_CLICKED, 1), Pair(PM_CLICKED, 1),
                                            Pair(PM_CURRENT_CHANGED, 0), Pair(PM_LEFT, 0)));
}

TEST_F(TabBarTest, WithoutAWayBackLeftStopsAtTheFirst)
{
    TabBar other(nullptr, false);
    other.setMessageTarget(&listener);
    other.append(test::peg("All"));
    other.setCurrent(0);
    EXPECT_FALSE(press(other, "<"));
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(TabBarTest, CurrentTabIsInSight)
{
    fill({"First of many", "Second of many", "Third of many", "Fourth of many"});
    EXPECT_EQ(inSight().front(), 0);
    EXPECT_LT(inSight().size(), 4u);
    for (int tab = 0; tab < 4; ++tab) {
        bar.setCurrent(tab);
        EXPECT_THAT(inSight(), testing::Contains(tab));
        EXPECT_TRUE(host::contains(bar.Area(), bar.tabArea(tab)));
    }
    EXPECT_EQ(inSight().back(), 3);
    bar.setCurrent(0);
    EXPECT_EQ(inSight().front(), 0);
}

TEST_F(TabBarTest, RoomOfATabThatGoesIsTheOthers)
{
    fill({"First many", "Second many", "Third many"});
    bar.setCurrent(2);
    bar.remove(0);
    EXPECT_EQ(bar.current(), 1);
    EXPECT_THAT(inSight(), ElementsAre(0, 1));
    bar.remove(1);
    EXPECT_EQ(bar.current(), -1);
    bar.remove(7);
    EXPECT_EQ(bar.count(), 1);
}

TEST_F(TabBarTest, TitleThatIsTooLongHasTheWholeRoom)
{
    fill({std::string(100, 'm'), "B"});
    EXPECT_THAT(inSight(), ElementsAre(0));
    EXPECT_TRUE(host::contains(bar.Area(), bar.tabArea(0)));
    bar.setTitle(0, test::peg("A"));
    EXPECT_THAT(inSight(), ElementsAre(0, 1));
    bar.setTitle(5, test::peg("ignored"));
}

TEST_F(TabBarTest, TabsStandFromTheRightWhereTextsDo)
{
    KestrelApplication::getCurrentApplication()->setLocale(test::peg("ar"));
    fill({"A", "B"});
    EXPECT_GT(bar.tabArea(0).left, bar.tabArea(1).right);
    EXPECT_TRUE(press(bar, "<"));
    EXPECT_EQ(bar.current(), 1);
    KestrelApplication::getCurrentApplication()->setLocale(PegString());
}

} // namespace
