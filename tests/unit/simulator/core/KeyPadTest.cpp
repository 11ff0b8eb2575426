#include "simulator/core/KeyPad.h"

#include "host/input/Keyboard.h"
#include "simulator/screen/KeyRepeatRule.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::KeyPad;
using simulator::KeyRepeatRule;
using test::becomesTrue;
using test::Gate;
using test::RecordingThing;
using test::RunningToolkit;
using testing::ElementsAre;

class KeyPadTest : public testing::Test {
protected:
    KeyPadTest()
    {
        toolkit.run([this] {
            gpPresent->Add(focused);
            gpPresent->MoveFocusTree(focused);
        });
    }

    /// What the focus has got so far: "+" and the key for down, "-" for up.
    std::string keys()
    {
        EXPECT_TRUE(toolkit.waitUntilIdle());
        std::string text;
        toolkit.run([&] {
            for (const PegMessage& message : focused->messages)
                if (message.wType == PM_KEY || message.wType == PM_KEYRELEASE)
                    text += std::string(message.wType == PM_KEY ? "+" : "-") + static_cast<char>(message.iData);
        });
        return text;
    }

    RunningToolkit toolkit;
    RecordingThing* focused = new RecordingThing;
    KeyPad pad;
    const int one = 1;
    const int other = 2;
};

TEST_F(KeyPadTest, KeyGoesDownAndUp)
{
    pad.down(&one, PK_STAR);
    pad.up(&one, PK_STAR);
    EXPECT_EQ(keys(), "+*-*");
}

TEST_F(KeyPadTest, KeyThatIsDownIsPressedAgain)
{
    pad.again(PK_STAR);
    pad.down(&one, PK_STAR);
    pad.again(PK_STAR);
    EXPECT_EQ(keys(), "+*+*");
}

TEST_F(KeyPadTest, KeyThatIsNotTakenIsTold)
{
    toolkit.quit();
    EXPECT_FALSE(pad.down(&one, PK_STAR));
    EXPECT_EQ(pad.press(&one, PK_STAR), KeyPad::Press::REFUSED);
}

TEST_F(KeyPadTest, KeyThatIsHeldIsNotPressed)
{
    pad.down(&other, PK_STAR);
    EXPECT_EQ(pad.press(&one, PK_STAR), KeyPad::Press::HELD);
    EXPECT_EQ(pad.press(&one, PK_9), KeyPad::Press::TAKEN);
    pad.up(&other, PK_STAR);
    EXPECT_EQ(pad.press(&one, PK_STAR), KeyPad::Press::TAKEN);
    EXPECT_EQ(keys(), "+*+9-9-*+*-*");
}

TEST_F(KeyPadTest, KeyIsUpWhenTheLastPageLetsGo)
{
    pad.down(&one, PK_STAR);
    pad.down(&other, PK_STAR);
    pad.up(&one, PK_STAR);
    EXPECT_EQ(keys(), "+*");
    pad.up(&other, PK_STAR);
    EXPECT_EQ(keys(), "+*-*");
}

TEST_F(KeyPadTest, PageThatGoesLetsGo)
{
    pad.down(&one, PK_STAR);
    pad.down(&one, PK_HASH);
    pad.down(&other, PK_9);
    pad.leave(&one);
    EXPECT_EQ(keys(), "+*+#+9-#-*");
}

TEST_F(KeyPadTest, StrayAndRepeatedMessagesAreNothing)
{
    pad.up(&one, PK_STAR);
    pad.down(&one, PK_STAR);
    pad.down(&one, PK_STAR);
    pad.up(&other, PK_STAR);
    pad.leave(&other);
    EXPECT_EQ(keys(), "+*");
}

TEST_F(KeyPadTest, HeldKeyThatMovesThroughAListRepeats)
{
    const auto start = std::chrono::steady_clock::now();
    pad.down(&one, PK_DOWN);
    EXPECT_TRUE(becomesTrue([this] { return keys().size() >= 2 * 3; }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, KeyRepeatRule::DELAY + KeyRepeatRule::INTERVAL);
    pad.up(&one, PK_DOWN);
    const auto count = keys().size();
    std::this_thread::sleep_for(3 * KeyRepeatRule::INTERVAL);
    EXPECT_EQ(keys().size(), count);
}

TEST_F(KeyPadTest, ReleaseThatTheTelephoneDoesNotTakeIsOfferedAgain)
{
    Gate free;
    pad.down(&one, PK_STAR);
    EXPECT_EQ(keys(), "+*");
    toolkit.post([&] { EXPECT_TRUE(free.wait()); });
    while (host::Keyboard::instance().press(PK_9)) {
    }
    pad.up(&one, PK_STAR);
    free.open();
    EXPECT_TRUE(becomesTrue([this] { return keys().ends_with("-*"); }));
}

} // namespace
