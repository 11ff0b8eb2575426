#include "walk/RandomKeys.h"

#include "simulator/script/ScriptParser.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

namespace test {

namespace {

constexpr int MANY = 2000;

std::string linesFrom(unsigned int seed)
{
    RandomKeys keys(seed);
    std::string lines;
    for (int i = 0; i < MANY; ++i)
        lines += keys.next() + '\n';
    return lines;
}

TEST(RandomKeysTest, AreAScript)
{
    const simulator::Script script = simulator::parseScript("walk", linesFrom(1));
    EXPECT_THAT(script.errors, IsEmpty());
    EXPECT_EQ(script.steps.size(), static_cast<std::size_t>(MANY));
}

TEST(RandomKeysTest, AreThoseOfTheirSeed)
{
    EXPECT_EQ(linesFrom(7), linesFrom(7));
    EXPECT_NE(linesFrom(7), linesFrom(8));
}

} // namespace

} // namespace test
