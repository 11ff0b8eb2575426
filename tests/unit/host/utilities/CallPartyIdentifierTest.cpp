#include "utilities/CallPartyIdentifier.h"

#include <gtest/gtest.h>

namespace {

std::string shown(const CallPartyIdentifier& party, bool preferNumber)
{
    std::string text = "untouched";
    const bool known = party.getInterimNameNumber(text, preferNumber);
    EXPECT_EQ(known, text != "untouched");
    return text;
}

TEST(CallPartyIdentifier, ShowsTheNameBeforeTheNumber)
{
    EXPECT_EQ(shown({"Ada", "123"}, false), "Ada");
}

TEST(CallPartyIdentifier, ShowsTheNumberWherePreferred)
{
    EXPECT_EQ(shown({"Ada", "123"}, true), "123");
}

TEST(CallPartyIdentifier, ShowsTheNumberWithoutAName)
{
    EXPECT_EQ(shown({"", "123"}, false), "123");
}

TEST(CallPartyIdentifier, ShowsTheNameWhereThePreferredNumberIsMissing)
{
    EXPECT_EQ(shown({"Ada", ""}, true), "Ada");
}

TEST(CallPartyIdentifier, LeavesTheTextAloneWhenNothingIsKnown)
{
    EXPECT_EQ(shown({}, false), "untouched");
    EXPECT_EQ(shown({}, true), "untouched");
}

} // namespace
