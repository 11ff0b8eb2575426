#include "PegInitAndCleanUp.h"

#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegMessageQueue.h"

#include <gtest/gtest.h>

#include <memory>

using DisplayAPI::PegInitAndCleanUp;
using DisplayAPI::PegInitAndCleanUpIfc;

TEST(PegInitAndCleanUpTest, InitStartsTheToolkitAndCleanUpStopsIt)
{
    const std::unique_ptr<PegInitAndCleanUpIfc> toolkit = std::make_unique<PegInitAndCleanUp>();
    ASSERT_EQ(gpPresent, nullptr);

    toolkit->init();
    EXPECT_NE(gpPresent, nullptr);
    EXPECT_NE(gpFreePool, nullptr);
    EXPECT_NE(gtPegMainQueue, nullptr);
    EXPECT_NE(PegThing::mpScreen, nullptr);
    EXPECT_NE(PegThing::mpMessageQueue, nullptr);

    toolkit->cleanUp();
    EXPECT_EQ(gpPresent, nullptr);
    EXPECT_EQ(PegThing::mpScreen, nullptr);
    EXPECT_NE(gtPegMainQueue, nullptr) << "a late post finds the queue";
}

TEST(PegInitAndCleanUpTest, TheToolkitCanBeStartedAgain)
{
    PegInitAndCleanUp toolkit;
    for (int round = 0; round < 3; ++round) {
        toolkit.init();
        EXPECT_NE(gpPresent, nullptr);
        toolkit.cleanUp();
        EXPECT_EQ(gpPresent, nullptr);
    }
}

TEST(PegInitAndCleanUpTest, DestroyingTheStarterStopsNothing)
{
    std::make_unique<PegInitAndCleanUp>()->init();
    EXPECT_NE(gpPresent, nullptr);
    PegInitAndCleanUp().cleanUp();
}
