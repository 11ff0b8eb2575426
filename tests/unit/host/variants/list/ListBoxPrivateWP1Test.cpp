#include "unit/host/variants/list/ListVariantTest.h"

#include "DisplayAPI/Command.h"

using namespace DisplayAPI;

namespace {

/// The row that goes back, which only this panel has.
class ListBoxPrivateWP1Test : public test::ListVariantTest<test::WP1Variant> {
protected:
    ListBoxPrivateWP1Test() { attach(list); }

    std::string letters() { return test::lettersOf(boxOf(list)); }

    ListBoxPrivateWP1 list{&owner, true};
    Row a{std::string("a"), true}, b{std::string("b"), true};
};

TEST_F(ListBoxPrivateWP1Test, BackRowIsTheLastAndCountsAsNone)
{
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.getSelectedIndex(), -1);
    list.append(&a);
    list.insertAt(&b, 100);
    EXPECT_EQ(list.size(), 2);
    EXPECT_EQ(letters(), "[a]b\u2190");
}

TEST_F(ListBoxPrivateWP1Test, BackRowGoesBack)
{
    list.append(&a);
    press(list, PK_DOWN);
    EXPECT_EQ(list.getSelectedIndex(), -1);
    EXPECT_CALL(listener, postCommandAction(List::BACK_COMMAND(), &owner));
    press(list, PK_OK);
    press(list, PK_RIGHT);
}

TEST_F(ListBoxPrivateWP1Test, CannotBeSelectedByIndex)
{
    list.append(&a);
    list.setSelectedIndex(1);
    EXPECT_EQ(list.getSelectedIndex(), 0);
}

TEST_F(ListBoxPrivateWP1Test, UserStaysThereWhileRowsComeAndGo)
{
    list.append(&a);
    press(list, PK_DOWN);
    list.append(&b);
    EXPECT_EQ(letters(), "ab[\u2190]");
    list.remove(&a);
    EXPECT_EQ(letters(), "b[\u2190]");
}

TEST_F(ListBoxPrivateWP1Test, RemovedLastRowHandsOnToTheOneAbove)
{
    list.append(&a);
    list.append(&b);
    list.setSelectedIndex(1);
    list.remove(&b);
    EXPECT_EQ(letters(), "[a]\u2190");
}

TEST_F(ListBoxPrivateWP1Test, ClearKeepsIt)
{
    list.append(&a);
    list.clear();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(letters(), "[\u2190]");
}

} // namespace
