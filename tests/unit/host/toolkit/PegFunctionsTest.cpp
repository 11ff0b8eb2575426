#include "toolkit/PegFunctions.h"

#include "host/Phone.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/MessagePool.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegMessageQueue.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

class FarewellThing : public PegThing {
public:
    explicit FarewellThing(bool& gone) : mGone(gone) {}
    ~FarewellThing() override { mGone = true; }

private:
    bool& mGone;
};

TEST(PegInit, MakesScreenQueueAndPresentationManager)
{
    pegInit();
    EXPECT_NE(gpFreePool, nullptr);
    EXPECT_NE(gtPegMainQueue, nullptr);
    EXPECT_NE(gpPresent, nullptr);
    EXPECT_NE(PegThing::mpScreen, nullptr);
    EXPECT_NE(PegThing::mpMessageQueue, nullptr);
    pegCleanUp();
}

TEST(PegInit, PoolHoldsThePreallocatedRecords)
{
    pegInit();
    EXPECT_GE(host::MessagePool::counters().free, host::MessagePool::PREALLOCATED);
    pegCleanUp();
}

TEST(PegInit, PresentationManagerCoversThePanelOfTheVariant)
{
    for (const host::Variant variant : {host::Variant::NARROW, host::Variant::WP1, host::Variant::PLAIN}) {
        host::setVariant(variant);
        pegInit();
        const auto [width, height] = host::panelSize();
        EXPECT_EQ(host::Lcd::current()->width(), width);
        EXPECT_EQ(host::Lcd::current()->height(), height);
        EXPECT_EQ(gpPresent->Area().right, width - 1);
        EXPECT_EQ(gpPresent->Area().bottom, height - 1);
        pegCleanUp();
    }
}

TEST(PegInit, SecondStartKeepsWhatRuns)
{
    pegInit();
    PRESCPresentationManager* const first = gpPresent;
    pegInit();
    EXPECT_EQ(gpPresent, first);
    pegCleanUp();
    EXPECT_EQ(gpPresent, first) << "the other user still needs it";
    pegCleanUp();
    EXPECT_EQ(gpPresent, nullptr);
}

TEST(PegCleanUp, WithoutStartDoesNothing)
{
    pegCleanUp();
    pegInit();
    EXPECT_NE(gpPresent, nullptr);
    pegCleanUp();
}

TEST(PegCleanUp, DeletesWhatThePresentationManagerOwns)
{
    bool gone = false;
    pegInit();
    gpPresent->Add(new FarewellThing(gone));
    pegCleanUp();
    EXPECT_TRUE(gone);
    EXPECT_EQ(PegThing::mpScreen, nullptr);
    EXPECT_EQ(PegThing::mpMessageQueue, nullptr);
}

TEST(PegCleanUp, GivesQueuedMessagesBackAndKeepsTheQueue)
{
    pegInit();
    const std::size_t free = host::MessagePool::counters().free;
    for (int i = 0; i < 100; ++i)
        PegThing::mpMessageQueue->Push({PM_CLICKED, i});
    PegMainQueue* const queue = gtPegMainQueue;
    pegCleanUp();
    EXPECT_EQ(gtPegMainQueue, queue);
    EXPECT_EQ(queue->count(), 0);
    EXPECT_EQ(host::MessagePool::counters().free, free);
}

TEST(PegCleanUp, LeavesRequestsToTheLibrary)
{
    pegInit();
    int record = 0;
    PegThing::mpMessageQueue->Push({PM_WIDGET_REQUEST, 0, nullptr, nullptr, nullptr, &record});
    PegThing::mpMessageQueue->Push({PM_CLICKED, 1});
    pegCleanUp();
    ASSERT_EQ(gtPegMainQueue->count(), 1);
    EXPECT_EQ(gtPegMainQueue->head->pData, &record);
    gtPegMainQueue->head->wType = PM_CLICKED; // no longer anybody's
    pegInit();
    pegCleanUp();
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST(PegAtoI, ReadsTheNumberAtTheStart)
{
    EXPECT_EQ(PegAtoI("42"), 42);
    EXPECT_EQ(PegAtoI("-7px"), -7);
    EXPECT_EQ(PegAtoI("+19"), 19);
    EXPECT_EQ(PegAtoI("007"), 7);
}

TEST(PegAtoI, IsZeroWhereThereIsNone)
{
    for (const char* text : {"", "x1", "-", "+", "+-1", " 1"})
        EXPECT_EQ(PegAtoI(text), 0) << '"' << text << '"';
    EXPECT_EQ(PegAtoI(nullptr), 0);
}

TEST(PegAtoI, StopsAtTheEndsOfTheRange)
{
    EXPECT_EQ(PegAtoI("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(PegAtoI("99999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(PegAtoI("-99999999999999999999"), std::numeric_limits<int>::min());
}

TEST(PegStrLen, CountsUpToTheZero)
{
    const PegChar text[] = {'a', 0x4E2D, 'c', 0, 'd'};
    EXPECT_EQ(PegStrLen(text), 3);
    EXPECT_EQ(PegStrLen(text + 3), 0);
    EXPECT_EQ(PegStrLen(nullptr), 0);
}

} // namespace
