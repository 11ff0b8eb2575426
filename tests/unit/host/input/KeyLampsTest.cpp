#include "host/input/KeyLamps.h"

#include <gmock/gmock.h>

#include <memory>

using host::KeyLamps;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class KeyLampsTest : public testing::Test {
protected:
    KeyLampsTest()
    {
        KeyLamps::setListener([this] { ++changes; });
    }
    ~KeyLampsTest() override { KeyLamps::setListener({}); }

    int changes = 0;
};

TEST_F(KeyLampsTest, ThereAreNoneWithoutARow)
{
    EXPECT_THAT(KeyLamps::current(), IsEmpty());
}

TEST_F(KeyLampsTest, RowMadeLastCounts)
{
    KeyLamps first(2);
    first.light(1, true);
    auto second = std::make_unique<KeyLamps>(1);
    EXPECT_THAT(KeyLamps::current(), ElementsAre(false));
    first.light(0, true);
    second.reset();
    EXPECT_THAT(KeyLamps::current(), ElementsAre(true, true));
}

TEST_F(KeyLampsTest, RowThatIsNotTheLastMayGoFirst)
{
    auto first = std::make_unique<KeyLamps>(2);
    const KeyLamps second(1);
    first.reset();
    EXPECT_THAT(KeyLamps::current(), ElementsAre(false));
}

TEST_F(KeyLampsTest, ListenerIsToldOfChangesAndMayLook)
{
    std::vector<bool> seen;
    auto lamps = std::make_unique<KeyLamps>(1);
    EXPECT_EQ(changes, 1);
    KeyLamps::setListener([&] { seen = KeyLamps::current(); });
    lamps->light(0, true);
    EXPECT_THAT(seen, ElementsAre(true));
    KeyLamps::setListener([this] { ++changes; });
    lamps->light(0, true);
    EXPECT_EQ(changes, 1);
    lamps.reset();
    EXPECT_EQ(changes, 2);
}

} // namespace
