#include "apps/deskphone/NetworkValues.h"

#include <gtest/gtest.h>

using deskphone::isComplete;
using DisplayAPI::TextField;

namespace {

TEST(NetworkValuesTest, AddressHasFourPartsOfOneByte)
{
    EXPECT_TRUE(isComplete("192.168.1.20", TextField::IP_ADDRESS));
    EXPECT_TRUE(isComplete("0.0.0.0", TextField::IP_ADDRESS));
    for (const char* address : {"192.168.1", "192.168.1.", "192.168.1.256", "1.2.3.4.5", "...", "Ada"})
        EXPECT_FALSE(isComplete(address, TextField::IP_ADDRESS)) << address;
}

TEST(NetworkValuesTest, DayIsOneThatThereIs)
{
    EXPECT_TRUE(isComplete("2026-11-22", TextField::DATE));
    EXPECT_TRUE(isComplete("2028-02-29", TextField::DATE));
    for (const char* day : {"2026-02-29", "2026-13-01", "2026-00-10", "2026-11-2", "2026-11-", "11-22-2026"})
        EXPECT_FALSE(isComplete(day, TextField::DATE)) << day;
}

TEST(NetworkValuesTest, NothingIsCompleteAndAPasswordIsWhatItIs)
{
    for (const auto type : {TextField::IP_ADDRESS, TextField::DATE, TextField::PASSWORD})
        EXPECT_TRUE(isComplete("", type));
    EXPECT_TRUE(isComplete("1.2", TextField::PASSWORD));
}

} // namespace
