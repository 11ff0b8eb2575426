#include "presentation/PRESCPresentationManager.h"

#include "host/clock/Clock.h"
#include "host/input/Keyboard.h"
#include "host/lcd/Lcd.h"
#include "host/utilities/Log.h"
#include "support/RunningToolkit.h"
#include "utilities/Threadable.h"
#include "widgets/StatusMessage.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using test::becomesTrue;
using test::Gate;
using test::RecordingThing;
using test::RunningToolkit;
using test::StartedToolkit;
using testing::ElementsAre;

std::vector<PegThing*> childrenOf(const PegThing& parent)
{
    std::vector<PegThing*> children;
    for (PegThing* child = parent.First(); child != nullptr; child = child->NextSibling())
        children.push_back(child);
    return children;
}

class PresentationManagerMessageTest : public testing::Test {
protected:
    StartedToolkit toolkit;
    PegThing* below = new PegThing;
    StatusMessage* message = new StatusMessage("Saved", 0);
    PegThing* added = new PegThing;
};

TEST_F(PresentationManagerMessageTest, WhatIsAddedSlipsUnderAStatusMessage)
{
    for (PegThing* thing : std::vector<PegThing*>{below, message, added})
        gpPresent->Add(thing);
    EXPECT_THAT(childrenOf(*gpPresent), ElementsAre(below, added, message));
    delete message;
    EXPECT_THAT(childrenOf(*gpPresent), ElementsAre(below, added));
}

TEST_F(PresentationManagerMessageTest, WhatIsAddedSlipsUnderTheOnlyThing)
{
    delete below;
    gpPresent->Add(message);
    gpPresent->Add(added);
    EXPECT_THAT(childrenOf(*gpPresent), ElementsAre(added, message));
    delete added;
    EXPECT_THAT(childrenOf(*gpPresent), ElementsAre(message));
}

TEST_F(PresentationManagerMessageTest, ALaterMessageLiesAboveAnEarlierOne)
{
    auto* const later = new StatusMessage("Again", 0);
    for (PegThing* thing : std::vector<PegThing*>{message, later, below, added})
        gpPresent->Add(thing, false);
    EXPECT_THAT(childrenOf(*gpPresent), ElementsAre(below, added, message, later));
}

class PresentationManagerFocusTest : public testing::Test {
protected:
    PresentationManagerFocusTest()
    {
        gpPresent->Add(window);
        gpPresent->Add(other);
        window->Add(list);
        list->Add(row);
    }

    StartedToolkit toolkit;
    PegThing* window = new PegThing;
    PegThing* list = new PegThing;
    PegThing* row = new PegThing;
    PegThing* other = new PegThing;
};

TEST_F(PresentationManagerFocusTest, MarksTheBranchAsCurrent)
{
    gpPresent->MoveFocusTree(row);
    EXPECT_EQ(gpPresent->Focus(), row);
    for (const PegThing* thing : {row, list, window, static_cast<PegThing*>(gpPresent)})
        EXPECT_TRUE(thing->StatusIs(PSF_CURRENT));
    EXPECT_FALSE(other->StatusIs(PSF_CURRENT));
}

TEST_F(PresentationManagerFocusTest, LeavesTheOldBranch)
{
    gpPresent->MoveFocusTree(row);
    gpPresent->MoveFocusTree(other);
    EXPECT_EQ(gpPresent->Focus(), other);
    for (const PegThing* thing : {row, list, window})
        EXPECT_FALSE(thing->StatusIs(PSF_CURRENT));
    EXPECT_TRUE(other->StatusIs(PSF_CURRENT));
    EXPECT_TRUE(gpPresent->StatusIs(PSF_CURRENT));
}

TEST_F(PresentationManagerFocusTest, KeepsTheSharedPartOfTheBranches)
{
    gpPresent->MoveFocusTree(row);
    gpPresent->MoveFocusTree(window);
    EXPECT_TRUE(window->StatusIs(PSF_CURRENT));
    EXPECT_FALSE(list->StatusIs(PSF_CURRENT));
}

TEST_F(PresentationManagerFocusTest, IgnoresNothingStrangersAndBackgrounds)
{
    gpPresent->MoveFocusTree(row);
    PegThing stranger;
    other->Style(FF_BEHIND);
    gpPresent->MoveFocusTree(nullptr);
    gpPresent->MoveFocusTree(&stranger);
    gpPresent->MoveFocusTree(other);
    EXPECT_EQ(gpPresent->Focus(), row);
}

TEST_F(PresentationManagerFocusTest, PushesNoMessage)
{
    gpPresent->MoveFocusTree(row);
    gpPresent->MoveFocusTree(other);
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST_F(PresentationManagerFocusTest, IsLostWithTheBranchThatIsRemoved)
{
    gpPresent->MoveFocusTree(row);
    gpPresent->Remove(window);
    EXPECT_EQ(gpPresent->Focus(), nullptr);
    for (const PegThing* thing : {row, list, window, static_cast<PegThing*>(gpPresent)})
        EXPECT_FALSE(thing->StatusIs(PSF_CURRENT));
    delete window;
}

TEST_F(PresentationManagerFocusTest, SurvivesTheRemovalOfAnotherBranch)
{
    gpPresent->MoveFocusTree(row);
    delete other;
    EXPECT_EQ(gpPresent->Focus(), row);
    EXPECT_TRUE(window->StatusIs(PSF_CURRENT));
}

TEST_F(PresentationManagerFocusTest, IsLostWithTheThingThatDies)
{
    gpPresent->MoveFocusTree(row);
    delete row;
    EXPECT_EQ(gpPresent->Focus(), nullptr);
    EXPECT_FALSE(list->StatusIs(PSF_CURRENT));
}

TEST_F(PresentationManagerFocusTest, PendingIsWhatWasAddedLast)
{
    EXPECT_EQ(gpPresent->Pending(), row);
    gpPresent->Add(other);
    EXPECT_EQ(gpPresent->Pending(), other);
}

TEST_F(PresentationManagerFocusTest, PendingIsWhatARemovalUncovers)
{
    delete other;
    EXPECT_EQ(gpPresent->Pending(), window);
    delete window;
    EXPECT_EQ(gpPresent->Pending(), gpPresent);
}

TEST_F(PresentationManagerFocusTest, PendingIsNeverAThingThatIsGone)
{
    gpPresent->Remove(window, false);
    EXPECT_EQ(gpPresent->Pending(), nullptr) << "the row that waited left with the window";
    delete window;
    EXPECT_EQ(gpPresent->Pending(), nullptr);
}

/// Takes part in a running loop; lives on the GUI thread.
class PresentationManagerLoopTest : public testing::Test {
protected:
    void add(PegThing* thing)
    {
        toolkit.run([=] { gpPresent->Add(thing); });
    }

    RunningToolkit toolkit;
};

TEST_F(PresentationManagerLoopTest, DeliversToTheTargetInOrder)
{
    auto* target = new RecordingThing;
    add(target);
    for (int number = 0; number < 1'000; ++number)
        PegMessageQueue().Push({PM_CLICKED, number, target});
    ASSERT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] {
        ASSERT_EQ(target->messages.size(), 1'000u);
        for (int number = 0; number < 1'000; ++number)
            ASSERT_EQ(target->messages[static_cast<std::size_t>(number)].iData, number);
    });
}

TEST_F(PresentationManagerLoopTest, MessageWithoutATargetGoesToTheFocus)
{
    auto* focused = new RecordingThing;
    add(focused);
    toolkit.run([&] { gpPresent->MoveFocusTree(focused); });
    PegMessageQueue().Push({PM_KEY, PK_OK});
    ASSERT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] {
        ASSERT_EQ(focused->messages.size(), 1u);
        EXPECT_EQ(focused->messages[0].iData, PK_OK);
    });
}

TEST_F(PresentationManagerLoopTest, KeyWithoutAFocusIsDropped)
{
    PegMessageQueue().Push({PM_KEY, PK_OK});
    EXPECT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST_F(PresentationManagerLoopTest, KeyThatNobodyWantsEndsAtTheRoot)
{
    auto* focused = new PegThing;
    add(focused);
    toolkit.run([&] { gpPresent->MoveFocusTree(focused); });
    PegMessageQueue().Push({PM_KEY, PK_OK});
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST_F(PresentationManagerLoopTest, MessagePushedByAHandlerComesLater)
{
    std::vector<std::string> events;
    toolkit.run([&] {
        toolkit.post([&] { events.push_back("pushed"); });
        events.push_back("handler");
    });
    toolkit.run([&] { EXPECT_THAT(events, ElementsAre("handler", "pushed")); });
}

TEST_F(PresentationManagerLoopTest, HandlerMayDeleteItsOwnTarget)
{
    class Suicidal : public PegThing {
    public:
        int Message(const PegMessage&) override
        {
            delete this;
            return 0;
        }
    };
    auto* target = new Suicidal;
    add(target);
    PegMessageQueue().Push({PM_CLICKED, 1, target});
    EXPECT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] { EXPECT_NE(gpPresent->First(), target); });
}

TEST_F(PresentationManagerLoopTest, PaintsWhatIsMarkedOnceTheQueueIsEmpty)
{
    auto* thing = new PegThing;
    toolkit.run([&] {
        thing->Resize({0, 0, 9, 9});
        gpPresent->Add(thing);
        EXPECT_EQ(gpPresent->Pending(), thing);
    });
    ASSERT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] {
        EXPECT_FALSE(host::Lcd::current()->isDirty());
        EXPECT_EQ(gpPresent->Pending(), nullptr);
    });
}

TEST_F(PresentationManagerLoopTest, PaintsWithoutAnybodyAskingForIt)
{
    std::atomic<int> frames{0};
    toolkit.run([&] {
        host::Lcd::current()->setFrameListener([&] { ++frames; });
        gpPresent->Invalidate();
    });
    EXPECT_TRUE(becomesTrue([&] { return frames > 0; }));
    toolkit.run([] { gpPresent->Invalidate(); });
    EXPECT_TRUE(becomesTrue([&] { return frames > 1; })) << "the second frame is due a little later";
    toolkit.run([] { host::Lcd::current()->setFrameListener({}); });
}

TEST_F(PresentationManagerLoopTest, PaintsWhileMessagesKeepComing)
{
    std::atomic<int> frames{0};
    toolkit.run([&] { host::Lcd::current()->setFrameListener([&] { ++frames; }); });
    const auto keepsTheQueueFilled = [&](auto self) -> void {
        gpPresent->Invalidate();
        if (frames < 3)
            toolkit.post([=] { self(self); });
    };
    toolkit.post([=] { keepsTheQueueFilled(keepsTheQueueFilled); });
    EXPECT_TRUE(becomesTrue([&] { return frames >= 3; }));
    toolkit.run([] { host::Lcd::current()->setFrameListener({}); });
}

TEST_F(PresentationManagerLoopTest, FiresTimersOnTheGuiThread)
{
    class Ticking : public PegThing {
    public:
        int Message(const PegMessage& message) override
        {
            thread = Threadable::currentThreadId();
            if (message.wType == PM_TIMER && ++count == 3)
                enough.open();
            return 0;
        }

        int count = 0;
        unsigned int thread = 0;
        Gate enough;
    };
    auto* ticking = new Ticking;
    add(ticking);
    toolkit.run([&] { ticking->SetTimer(1, 1, true); });
    EXPECT_TRUE(ticking->enough.wait());
    toolkit.run([&] {
        EXPECT_EQ(ticking->thread, Threadable::currentThreadId());
        ticking->KillTimer(1);
    });
}

TEST_F(PresentationManagerLoopTest, FiresTimersWhileMessagesKeepComing)
{
    std::atomic<bool> fired{false};
    class Once : public PegThing {
    public:
        explicit Once(std::atomic<bool>& flag) : mFlag(flag) {}

        int Message(const PegMessage&) override
        {
            mFlag = true;
            return 0;
        }

    private:
        std::atomic<bool>& mFlag;
    };
    auto* once = new Once(fired);
    add(once);
    const auto keepsTheQueueFilled = [&](auto self) -> void {
        if (!fired)
            toolkit.post([=] { self(self); });
    };
    toolkit.run([&] {
        once->SetTimer(1, 1, false);
        keepsTheQueueFilled(keepsTheQueueFilled);
    });
    EXPECT_TRUE(becomesTrue([&] { return fired.load(); }));
    toolkit.run([] {}); // behind the last of them
}

TEST(Execute, EndsOnExitThatWasPushedBefore)
{
    const StartedToolkit toolkit;
    PegMessageQueue().Push({PM_CLICKED, 1});
    PegMessageQueue().Push({PM_EXIT, 0, gpPresent});
    PegMessageQueue().Push({PM_CLICKED, 2});
    gpPresent->Execute(nullptr);
    EXPECT_FALSE(host::Loop::isRunning());
    EXPECT_EQ(gtPegMainQueue->count(), 1) << "what stands behind the exit is not taken";
}

TEST(Execute, ExitToAnybodyElseDoesNotEndIt)
{
    const StartedToolkit toolkit;
    RecordingThing other;
    PegMessageQueue().Push({PM_EXIT, 1, &other});
    PegMessageQueue().Push({PM_CLICKED, 2, &other});
    PegMessageQueue().Push({PM_EXIT, 3, gpPresent});
    gpPresent->Execute(nullptr);
    EXPECT_EQ(other.messages.size(), 2u);
}

TEST(Execute, MayRunAgain)
{
    const StartedToolkit toolkit;
    for (int round = 0; round < 3; ++round) {
        PegMessageQueue().Push({PM_EXIT, 0, gpPresent});
        gpPresent->Execute(nullptr);
    }
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST(Execute, NamesItsCallerInTheTrace)
{
    const StartedToolkit toolkit;
    const host::LogCapture log;
    PegMessageQueue().Push({PM_EXIT, 0, gpPresent});
    gpPresent->Execute("./src/Caller");
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_THAT(log.lines()[0].text, testing::HasSubstr("./src/Caller"));
}

} // namespace
