#include "host/widgets/telephony/EverySecond.h"

#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

using host::EverySecond;

namespace {

class EverySecondTest : public test::VirtualTime, public testing::Test {
protected:
    /// Notes a letter each time that it is told, and then does what the test wants.
    std::unique_ptr<EverySecond> make(
        char letter, std::function<void()> reaction = [] {})
    {
        return std::make_unique<EverySecond>([=, this] {
            told += letter;
            reaction();
        });
    }

    test::StartedToolkit toolkit;
    std::string told;
};

TEST_F(EverySecondTest, TellsOnceInEachSecond)
{
    const auto one = make('a');
    pass(999);
    EXPECT_EQ(told, "");
    pass(1);
    EXPECT_EQ(told, "a");
    pass(3'000);
    EXPECT_EQ(told, "aaaa");
}

TEST_F(EverySecondTest, AllAreToldAtTheSameMomentsInTheirOrder)
{
    const auto one = make('a');
    pass(700);
    const auto two = make('b');
    pass(300);
    EXPECT_EQ(told, "ab");
}

TEST_F(EverySecondTest, OneThatHasEndedIsNotTold)
{
    auto one = make('a');
    const auto two = make('b');
    one.reset();
    pass(1'000);
    EXPECT_EQ(told, "b");
}

TEST_F(EverySecondTest, NobodyWakesTheTelephoneWhenTheLastHasEnded)
{
    make('a');
    EXPECT_EQ(host::Clock::instance().timerDue(), host::Clock::NEVER);
    const auto again = make('b');
    pass(1'000);
    EXPECT_EQ(told, "b");
}

TEST_F(EverySecondTest, OneThatIsToldMayEndItselfAndOthers)
{
    std::unique_ptr<EverySecond> one, two, three, four;
    one = make('a', [&] { one.reset(); });
    two = make('b', [&] { three.reset(); });
    three = make('c');
    four = make('d');
    pass(1'000);
    EXPECT_EQ(told, "abd");
    pass(1'000);
    EXPECT_EQ(told, "abdbd");
}

} // namespace
