#include "host/widgets/form/ScrollingColumn.h"

#include "host/lcd/Geometry.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>

using host::Field;
using host::ScrollingColumn;
using test::press;

namespace {

/// A field of a height, which uses the digit 5 and nothing else.
class TestField : public Field {
public:
    explicit TestField(int height, bool takes = true) : mHeight(height), mTakesFocus(takes) {}

    int heightFor(int) const override { return mHeight; }
    bool key(int key) override { return key == '5'; }
    bool takesFocus() const override { return mTakesFocus; }
    bool isInSight() const { return !host::isEmpty(Area()); }

private:
    int mHeight;
    bool mTakesFocus;
};

class ScrollingColumnTest : public testing::Test {
protected:
    ScrollingColumnTest()
    {
        column.Resize(host::rectAt(0, 20, 100, 60));
        column.setFocus(true);
    }

    TestField* append(int height, bool takes = true)
    {
        auto* const field = new TestField(height, takes);
        column.append(field);
        return field;
    }

    test::StartedToolkit toolkit;
    ScrollingColumn column;
};

} // namespace

TEST_F(ScrollingColumnTest, IsEmptyAtFirst)
{
    EXPECT_EQ(column.focused(), nullptr);
    EXPECT_FALSE(column.takesFocus());
    EXPECT_FALSE(press(column, "v"));
    EXPECT_FALSE(press(column, "^"));
}

TEST_F(ScrollingColumnTest, StacksFieldsOfDifferentHeights)
{
    const TestField* first = append(20);
    const TestField* second = append(30);
    EXPECT_EQ(first->Area(), host::rectAt(0, 20, 92, 20));
    EXPECT_EQ(second->Area(), host::rectAt(0, 40, 92, 30));
    EXPECT_EQ(column.heightFor(100), 50);
}

TEST_F(ScrollingColumnTest, ShowsOnlyWhatFitsWhole)
{
    append(20);
    append(30);
    const TestField* cut = append(20);
    EXPECT_FALSE(cut->isInSight());
}

TEST_F(ScrollingColumnTest, KeepsTheFocusInSight)
{
    std::vector<TestField*> fields;
    for (int i = 0; i < 10; ++i)
        fields.push_back(append(i % 2 == 0 ? 20 : 30));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(column.focused(), fields[static_cast<std::size_t>(i)]);
        EXPECT_TRUE(fields[static_cast<std::size_t>(i)]->isInSight()) << i;
        EXPECT_EQ(press(column, "v"), i < 9);
    }
    for (int i = 9; i >= 0; --i) {
        EXPECT_EQ(column.focused(), fields[static_cast<std::size_t>(i)]);
        EXPECT_TRUE(fields[static_cast<std::size_t>(i)]->isInSight()) << i;
        EXPECT_EQ(press(column, "^"), i > 0);
    }
}

TEST_F(ScrollingColumnTest, OneFieldHasTheFocusWhileTheColumnHasIt)
{
    const TestField* first = append(20);
    const TestField* second = append(20);
    EXPECT_TRUE(first->hasFocus());
    EXPECT_FALSE(second->hasFocus());
    press(column, "v");
    EXPECT_FALSE(first->hasFocus());
    EXPECT_TRUE(second->hasFocus());
    column.setFocus(false);
    EXPECT_FALSE(second->hasFocus());
}

TEST_F(ScrollingColumnTest, PassesOverWhatTakesNoFocusAndShowsItsHeading)
{
    const TestField* heading = append(20, false);
    const TestField* first = append(20);
    append(20, false);
    const TestField* last = append(20);
    EXPECT_EQ(column.focused(), first);
    press(column, "v");
    EXPECT_EQ(column.focused(), last);
    EXPECT_FALSE(heading->isInSight());
    press(column, "^");
    EXPECT_EQ(column.focused(), first);
    EXPECT_TRUE(heading->isInSight());
}

TEST_F(ScrollingColumnTest, GivesKeysToTheFocusedFieldFirst)
{
    append(20);
    EXPECT_TRUE(press(column, "5"));
    EXPECT_FALSE(press(column, "6"));
    EXPECT_FALSE(press(column, "!"));
}

TEST_F(ScrollingColumnTest, HandsItsOwnFocusOn)
{
    const TestField* field = append(20);
    EXPECT_TRUE(field->hasFocus());
    column.setFocus(false);
    EXPECT_FALSE(field->hasFocus());
    column.setFocus(true);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(ScrollingColumnTest, GivesTheFocusOfARemovedFieldToTheNextOne)
{
    TestField* first = append(20);
    TestField* second = append(20);
    TestField* third = append(20);
    column.focus(second);
    column.remove(second);
    EXPECT_EQ(column.focused(), third);
    EXPECT_TRUE(third->hasFocus());
    column.remove(third);
    EXPECT_EQ(column.focused(), first);
    column.remove(first);
    EXPECT_EQ(column.focused(), nullptr);
    EXPECT_EQ(column.count(), 0);
}

TEST_F(ScrollingColumnTest, IgnoresFieldsThatAreNotItsOwnOrTakeNoFocus)
{
    const TestField* field = append(20);
    TestField* label = append(20, false);
    TestField stranger(20);
    column.focus(&stranger);
    column.focus(label);
    column.remove(&stranger);
    EXPECT_EQ(column.focused(), field);
    EXPECT_EQ(column.count(), 2);
}

TEST_F(ScrollingColumnTest, DeletesItsFieldsWithIt)
{
    append(20);
    append(20);
    column.clear();
    EXPECT_EQ(column.count(), 0);
    EXPECT_EQ(column.First(), nullptr);
    append(20);
}
