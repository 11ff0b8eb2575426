#include "widgets/CheckBoxListItem.h"

#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gtest/gtest.h>

namespace {

class CheckBoxListItemTest : public testing::Test {
protected:
    CheckBoxListItemTest()
    {
        list->append(&row);
        list->setMessageTarget(&notes);
        gpPresent->Add(list);
    }

    static std::vector<std::uint8_t> pixels()
    {
        host::Lcd::current()->paint();
        return host::Lcd::current()->picture().pixels;
    }

    test::StartedToolkit toolkit;
    test::MessageNotes notes;
    CheckBoxListItem row{ICC::fromUTF8toUNICODE("Monday")};
    KestrelListBoxWithTitle* list = new KestrelListBoxWithTitle; ///< the manager's
};

TEST_F(CheckBoxListItemTest, BoxShowsWhetherItIsChecked)
{
    const auto unchecked = pixels();
    row.setChecked(true);
    EXPECT_TRUE(row.isChecked());
    const auto checked = pixels();
    EXPECT_NE(checked, unchecked);
    row.swapChecked();
    EXPECT_FALSE(row.isChecked());
    EXPECT_EQ(pixels(), unchecked);
}

TEST_F(CheckBoxListItemTest, TellsTheListOfAChangeAlone)
{
    row.setChecked(false);
    EXPECT_TRUE(notes.take().empty());
    row.setChecked(true);
    EXPECT_EQ(notes.take(), (test::MessageNotes::Notes{{PM_ROW_CHANGED, 0}}));
}

TEST_F(CheckBoxListItemTest, ChoosingItIsTheListsBusiness)
{
    list->Message(test::keyMessage(PK_OK));
    EXPECT_FALSE(row.isChecked());
    EXPECT_EQ(notes.take(), (test::MessageNotes::Notes{{PM_CLICKED, 0}}));
}

} // namespace
