#include "Rows.h"

#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "support/GuiLoop.h"

#include <gtest/gtest.h>

namespace {

using DisplayAPI::List;
using DisplayAPI::ListItem;

TEST(ThreadsTest, ARowIsRewrittenInItsPlace)
{
    test::GuiLoop gui;
    doubles::Recorder::instance().clear();
    List list(1);
    list.append("first");
    ListItem* row = new ListItem("10:00", false);
    list.append(row);
    list.append("last");
    row = rewrite(list, row, "10:01");

    const std::vector<ListItem*> rows = list.getItems();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[1], row);
    EXPECT_EQ(rows[1]->getText(), "10:01");
}

} // namespace
