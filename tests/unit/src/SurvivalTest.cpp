#include "Survival.h"

#include "support/Gate.h"
#include "support/Worker.h"

#include <gtest/gtest.h>

#include <optional>

using DisplayAPI::Survival;

namespace {

TEST(SurvivalTest, ObjectIsThereUntilItTellsItsEnd)
{
    const int object = 0, other = 0;
    const Survival survival(&object);
    Survival::end(&other);
    EXPECT_TRUE(survival);
    Survival::end(&object);
    EXPECT_FALSE(survival);
}

TEST(SurvivalTest, EachCallThatIsUnderWayLearnsOfTheEnd)
{
    const int object = 0, other = 0;
    const Survival outer(&object);
    {
        const Survival between(&other);
        const Survival inner(&object);
        Survival::end(&object);
        EXPECT_FALSE(inner);
        EXPECT_TRUE(between);
    }
    EXPECT_FALSE(outer);
}

TEST(SurvivalTest, CallsOfAnotherThreadAreApart)
{
    const int object = 0, other = 0;
    bool ends = false;
    test::Gate begun, go;
    std::optional<Survival> here(&object);
    test::Worker worker([&] {
        const Survival survival(&other);
        begun.open();
        go.wait();
        Survival::end(&other);
        ends = !survival;
    });
    ASSERT_TRUE(begun.wait());
    here.reset();
    go.open();
    worker.join();
    EXPECT_TRUE(ends);
}

} // namespace
