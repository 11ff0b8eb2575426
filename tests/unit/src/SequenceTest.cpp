#include "DisplayAPI/Sequence.h"

#include "support/Seeds.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>

namespace {

struct Thing {
    void* home = nullptr;
};

struct ThingHome {
    static constexpr bool IS_KEPT = true;
    static void*& of(Thing& thing) { return thing.home; }
};

template <typename Home>
class SequenceTest : public testing::Test {
protected:
    using Things = DisplayAPI::Sequence<Thing, Home>;

    Thing* newThing() { return &mStore.emplace_back(); }

    /// Compares each position, from both directions.
    void expectSame(const Things& things, const std::vector<Thing*>& expected)
    {
        ASSERT_EQ(things.copy(), expected);
        ASSERT_EQ(things.size(), static_cast<int>(expected.size()));
        for (int i = 0; i < things.size(); ++i) {
            ASSERT_EQ(things.at(i), expected[static_cast<std::size_t>(i)]);
            if (i % 97 == 0) {
                ASSERT_EQ(things.find(things.at(i)), i);
            }
        }
    }

private:
    std::deque<Thing> mStore;
};

using Homes = testing::Types<DisplayAPI::NoHome, ThingHome>;
TYPED_TEST_SUITE(SequenceTest, Homes);

} // namespace

TYPED_TEST(SequenceTest, IsEmptyAtFirst)
{
    const typename TestFixture::Things things;
    Thing thing;
    EXPECT_TRUE(things.empty());
    EXPECT_EQ(things.at(0), nullptr);
    EXPECT_EQ(things.at(-1), nullptr);
    EXPECT_EQ(things.find(&thing), -1);
    EXPECT_EQ(things.find(nullptr), -1);
}

TYPED_TEST(SequenceTest, KeepsTheOrderOfThousandsOfChangesAtRandomPlaces)
{
    for (const unsigned seed : test::seeds()) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        typename TestFixture::Things things;
        std::vector<Thing*> expected;
        for (int step = 0; step < 12'000; ++step) {
            const bool grows = step < 6'000 ? random() % 4 != 0 : random() % 4 == 0;
            const std::size_t at = random() % (expected.size() + 1);
            if (grows || at == expected.size()) {
                things.insert(expected.emplace(expected.begin() + static_cast<std::ptrdiff_t>(at), this->newThing())[0],
                              static_cast<int>(at));
            } else {
                ASSERT_EQ(things.erase(static_cast<int>(at)), expected[at]);
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
            }
            if (step % 3'000 == 0)
                this->expectSame(things, expected);
        }
        this->expectSame(things, expected);
    }
}

TYPED_TEST(SequenceTest, EmptiesFromEitherEnd)
{
    for (const bool front : {true, false}) {
        typename TestFixture::Things things;
        for (int i = 0; i < 5'000; ++i)
            things.append(this->newThing());
        while (!things.empty())
            things.erase(front ? 0 : things.size() - 1);
        EXPECT_EQ(things.at(0), nullptr);
        things.append(this->newThing());
        EXPECT_EQ(things.size(), 1);
    }
}

TYPED_TEST(SequenceTest, FindsNothingThatHasBeenTakenOutOrStandsElsewhere)
{
    typename TestFixture::Things things;
    typename TestFixture::Things others;
    Thing* const gone = this->newThing();
    Thing* const there = this->newThing();
    things.append(gone);
    things.append(this->newThing());
    others.append(there);
    things.erase(0);
    EXPECT_EQ(things.find(gone), -1);
    EXPECT_EQ(things.find(there), -1);
    EXPECT_EQ(others.find(there), 0);
    others.clear();
    EXPECT_EQ(others.find(there), -1);
}

TYPED_TEST(SequenceTest, LooksWhereItIsToldToFirst)
{
    typename TestFixture::Things things;
    for (int i = 0; i < 3; ++i)
        things.append(this->newThing());
    EXPECT_EQ(things.find(things.at(2), 2), 2);
    EXPECT_EQ(things.find(things.at(2), 0), 2);
    EXPECT_EQ(things.find(things.at(2), 99), 2);
}

TYPED_TEST(SequenceTest, PutsOneInThePlaceOfAnother)
{
    typename TestFixture::Things things;
    for (int i = 0; i < 3; ++i)
        things.append(this->newThing());
    Thing* const former = things.at(1);
    Thing* const fresh = this->newThing();
    EXPECT_EQ(things.replace(fresh, 1), former);
    EXPECT_EQ(things.find(former), -1);
    EXPECT_EQ(things.find(fresh), 1);
    EXPECT_EQ(things.size(), 3);
}

TEST(SequenceSizeTest, IsThatOfThreePointers)
{
    EXPECT_EQ(sizeof(DisplayAPI::Sequence<Thing>), 3 * sizeof(void*));
    EXPECT_EQ(sizeof(DisplayAPI::Sequence<Thing, ThingHome>), 3 * sizeof(void*));
}

TYPED_TEST(SequenceTest, IsWalkedInEitherDirectionFromAnywhereUntilTheVisitorHasEnough)
{
    constexpr int SIZE = 1'500;
    typename TestFixture::Things things;
    for (int i = 0; i < SIZE; ++i)
        things.append(this->newThing());
    for (int from = -1; from <= SIZE; from += 50) {
        int next = from;
        things.walkFrom(from, [&](Thing* thing) { return thing == things.at(next++); });
        EXPECT_EQ(next, from < 0 ? from : SIZE);
        next = from;
        things.walkBackFrom(from, [&](Thing* thing) { return thing == things.at(next--); });
        EXPECT_EQ(next, from < SIZE ? -1 : from);
    }
    int visited = 0;
    things.walkFrom(700, [&](Thing*) { return ++visited < 3; });
    things.walkBackFrom(700, [&](Thing*) { return ++visited < 6; });
    EXPECT_EQ(visited, 6);
}

TYPED_TEST(SequenceTest, HasNothingToWalkWhileItIsEmpty)
{
    const typename TestFixture::Things things;
    const auto fail = [](Thing*) {
        ADD_FAILURE();
        return false;
    };
    things.walkFrom(0, fail);
    things.walkBackFrom(0, fail);
    things.walkBackFrom(-1, fail);
}
