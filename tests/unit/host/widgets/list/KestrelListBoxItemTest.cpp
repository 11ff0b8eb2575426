#include "widgets/KestrelListBoxItem.h"

#include "support/RowsOwner.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

TEST(KestrelListBoxItemTest, KeepsItsText)
{
    KestrelListBoxItem item(ICC::fromUTF8toUNICODE("Ærø"));
    EXPECT_EQ(textOf(&item), "Ærø");
    item.DataSet(ICC::fromUTF8toUNICODE("Åre"));
    EXPECT_EQ(textOf(&item), "Åre");
}

TEST(KestrelListBoxItemTest, StartsWithoutMark)
{
    KestrelListBoxItem item{PegString()};
    EXPECT_FALSE(item.isMarked());
    item.setMarked(true);
    EXPECT_TRUE(item.isMarked());
}

TEST(KestrelListBoxItemTest, TakesItselfOutOfItsListWhenItDies)
{
    KestrelListBoxWithTitle list;
    RowsOwner rows;
    rows.append(list, "ac");
    {
        KestrelListBoxItem item(ICC::fromUTF8toUNICODE("b"));
        list.insert(&item, 1);
        list.setCurrentRow(1);
        EXPECT_EQ(lettersOf(list), "a[b]c");
    }
    EXPECT_EQ(lettersOf(list), "a[c]");
}

} // namespace
