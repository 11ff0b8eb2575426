#include "apps/deskphone/ShortDialBook.h"

#include <gtest/gtest.h>

using deskphone::shortDialOf;

namespace {

TEST(ShortDialBookTest, EntryIsFoundByItsNumber)
{
    ASSERT_NE(shortDialOf("2"), nullptr);
    EXPECT_EQ(shortDialOf("2")->telephone, "4716");
}

TEST(ShortDialBookTest, NobodyIsFoundByWhatIsNoShortDial)
{
    EXPECT_EQ(shortDialOf(""), nullptr);
    EXPECT_EQ(shortDialOf("0"), nullptr);
    EXPECT_EQ(shortDialOf("22"), nullptr);
    EXPECT_EQ(shortDialOf("4716"), nullptr);
}

} // namespace
