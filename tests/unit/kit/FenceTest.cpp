#include "kit/Fence.h"

#include "unit/kit/KitTest.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;

namespace {

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

} // namespace

TEST(FenceTest, IsReachedBehindEverythingThatWasQueued)
{
    SlowListener listener;
    Command command("", Command::OK);
    DisplayAPI::kit::Fence fence;
    for (int i = 0; i < 20; ++i)
        listener.postCommandAction(&command, nullptr);
    fence.wait();
    EXPECT_EQ(listener.heard, 20);
    listener.postCommandAction(&command, nullptr);
    fence.wait();
    EXPECT_EQ(listener.heard, 21);
}
