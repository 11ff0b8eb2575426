#include "Fence.h"
#include "Rows.h"

#include "DisplayAPI/Command.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "support/GuiLoop.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::List;
using DisplayAPI::ListItem;

class SlowListener : public CommandListener {
public:
    std::atomic<int> heard{0};

private:
    void commandAction(Command*, Displayable*) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        ++heard;
    }
};

TEST(ThreadsTest, AFenceIsReachedBehindEverythingThatWasQueued)
{
    SlowListener listener;
    Command command("", Command::OK);
    Fence fence;
    for (int i = 0; i < 20; ++i)
        listener.postCommandAction(&command, nullptr);
    fence.wait();
    EXPECT_EQ(listener.heard, 20);
}

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
