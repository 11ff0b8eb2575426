#include "CallRow.h"

#include "DisplayAPI/ListBoxText.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

using DisplayAPI::CallRow;
using testing::ElementsAre;

namespace {

constexpr int CREATE = 10, DESTROY = 11, SET_NUMBER = 12, GET_TEXT = 6;

class CallRowTest : public test::SteppedTest {
protected:
    std::string show(CallRow& row)
    {
        list.append(row.getPrivateImplemetation()->getKestrelListItem());
        return DisplayAPI::listAsText(list);
    }

    KestrelListBoxWithTitle list;
};

constexpr const char* SCREEN = "object:\nname:KestrelListBox\n"
                               "subitem:\nname:TwoLineRow\nstring0:Ada\nstring1:030 1815\nendsubitem:\n"
                               "end:\n";

TEST_F(CallRowTest, ShowsNameAndNumber)
{
    CallRow row("Ada");
    row.setNumber("030 1815");
    EXPECT_EQ(show(row), SCREEN);
    EXPECT_EQ(row.getText(), "Ada");
}

TEST_F(CallRowTest, AnotherThreadMakesAndChangesOne)
{
    std::unique_ptr<CallRow> row;
    std::string text;
    test::Worker worker([&] {
        row = std::make_unique<CallRow>("Ada");
        row->setNumber("030 1815");
        text = row->getText();
    });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, SET_NUMBER, GET_TEXT));
    gui.runAll();
    worker.join();
    EXPECT_EQ(text, "Ada");
    EXPECT_EQ(show(*row), SCREEN);
}

TEST_F(CallRowTest, AnotherThreadDeletesOneThatIsInAList)
{
    auto* const row = new CallRow("Ada");
    show(*row);
    test::Worker worker([&] { delete row; });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(DESTROY));
    while (worker.isBlocked()) // the list item's part has a request of its own
        gui.runAll();
    EXPECT_EQ(list.numItems(), 0);
}

} // namespace
