#include "host/widgets/menu/CommandColumn.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>

using host::CommandColumn;
using test::press;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr int ROWS = 3, LINE = 18;

/// Notes what has to be painted.
class Below : public PegThing {
public:
    explicit Below(std::vector<PegRect>& painted) : mPainted(painted) { Resize(gpPresent->Area()); }
    void Draw(PegPainter& painter) override { mPainted.push_back(painter.clip()); }

private:
    std::vector<PegRect>& mPainted;
};

class CommandColumnTest : public testing::Test {
protected:
    CommandColumnTest()
    {
        column.setMostRows(ROWS);
        column.setMessageTarget(&listener);
        column.setFocus(true);
        column.Resize(host::rectAt(0, 0, 100, ROWS * LINE));
    }

    void fill(int count)
    {
        for (int i = 0; i < count; ++i)
            column.insert(i, {.text = test::peg(std::to_string(i))});
    }

    /// The numbers of the commands in sight.
    std::vector<int> inSight() const
    {
        std::vector<int> shown;
        for (int i = 0; i < column.count(); ++i)
            if (!host::isEmpty(column.rowArea(i)))
                shown.push_back(i);
        return shown;
    }

    test::StartedToolkit toolkit;
    test::Listener listener;
    CommandColumn column;
    std::vector<PegRect> painted;
};

} // namespace

TEST_F(CommandColumnTest, WithoutCommandsUsesNoKeys)
{
    for (const char* key : {"^", "v", "!", "<", ">"})
        EXPECT_FALSE(press(column, key)) << key;
    EXPECT_EQ(column.current(), -1);
    EXPECT_THAT(inSight(), IsEmpty());
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(CommandColumnTest, GoesRoundAtBothEndsAndOkChooses)
{
    fill(4);
    press(column, "^");
    EXPECT_THAT(inSight(), ElementsAre(1, 2, 3));
    press(column, "v!");
    EXPECT_THAT(inSight(), ElementsAre(0, 1, 2));
    EXPECT_THAT(listener.heard,
                ElementsAre(Pair(PM_CURRENT_CHANGED, 3), Pair(PM_CURRENT_CHANGED, 0), Pair(PM_CLICKED, 0)));
}

TEST_F(CommandColumnTest, OnlyCommandStaysCurrentAndLeavesTheKeysToOthers)
{
    fill(1);
    EXPECT_FALSE(press(column, "v"));
    EXPECT_FALSE(press(column, "^"));
    EXPECT_EQ(column.current(), 0);
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(CommandColumnTest, CurrentOneStaysInSight)
{
    fill(10);
    press(column, "vvvv");
    EXPECT_THAT(inSight(), ElementsAre(2, 3, 4));
    press(column, "^^^");
    EXPECT_THAT(inSight(), ElementsAre(1, 2, 3));
    column.setCurrent(9);
    EXPECT_THAT(inSight(), ElementsAre(7, 8, 9));
    column.Resize(host::rectAt(0, 0, 100, LINE));
    EXPECT_THAT(inSight(), ElementsAre(9));
    column.Resize(host::rectAt(0, 0, 100, ROWS * LINE));
    EXPECT_THAT(inSight(), ElementsAre(7, 8, 9));
}

TEST_F(CommandColumnTest, CurrentOneStaysCurrentWhenOthersComeBefore)
{
    fill(2);
    column.setCurrent(1);
    column.insert(1, {.text = test::peg("new")});
    EXPECT_EQ(column.at(column.current()).text, test::peg("1"));
    column.insert(-5, {.text = test::peg("front")});
    column.insert(99, {.text = test::peg("end")});
    EXPECT_EQ(column.at(column.current()).text, test::peg("1"));
    EXPECT_EQ(column.at(0).text, test::peg("front"));
    EXPECT_EQ(column.at(4).text, test::peg("end"));
}

TEST_F(CommandColumnTest, IgnoresCommandsThatThereAreNot)
{
    fill(2);
    for (const int none : {-1, 2}) {
        column.setCurrent(none);
        column.setText(none, test::peg("x"));
        EXPECT_TRUE(host::isEmpty(column.rowArea(none)));
    }
    EXPECT_EQ(column.current(), 0);
}

TEST_F(CommandColumnTest, IsAsHighAsItsCommandsAndNoHigherThanItMay)
{
    EXPECT_EQ(column.heightFor(100), LINE);
    fill(2);
    EXPECT_EQ(column.heightFor(100), 2 * LINE);
    fill(9);
    EXPECT_EQ(column.heightFor(100), ROWS * LINE);
    column.setMostRows(0);
    EXPECT_EQ(column.heightFor(100), LINE);
}

TEST_F(CommandColumnTest, MovingWithinSightPaintsTheTwoRowsAlone)
{
    gpPresent->Add(new Below(painted));
    auto* const shown = new CommandColumn;
    shown->Resize(host::rectAt(0, 0, 100, ROWS * LINE));
    for (const char* text : {"one", "two", "three"})
        shown->insert(shown->count(), {.text = test::peg(text)});
    gpPresent->Add(shown);
    host::Lcd::current()->paint();
    painted.clear();
    press(*shown, "v");
    host::Lcd::current()->paint();
    EXPECT_FALSE(painted.empty());
    for (const PegRect& part : painted)
        EXPECT_TRUE(host::contains(host::rectAt(0, 0, 100, 2 * LINE), part));
}

TEST_F(CommandColumnTest, ClearedOneBeginsAnew)
{
    fill(9);
    press(column, "^");
    column.clear();
    EXPECT_EQ(column.current(), -1);
    fill(2);
    EXPECT_EQ(column.current(), 0);
    EXPECT_EQ(column.top(), 0);
}
