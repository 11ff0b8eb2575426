#include "simulator/rpc/RpcAdmission.h"

#include <gtest/gtest.h>

namespace {

using simulator::Caller;
using simulator::Endpoint;
using simulator::RpcAdmission;

const RpcAdmission HERE(Endpoint{}, "secret");
const RpcAdmission OPEN(Endpoint{"0.0.0.0", 8080, "page_token"}, "secret");

TEST(RpcAdmission, TokenOpensIt)
{
    EXPECT_TRUE(HERE.allows({"localhost:8080", "", "token=secret"}));
    EXPECT_TRUE(HERE.allows({"127.0.0.1:8080", "", "", "Bearer secret"}));
    EXPECT_TRUE(HERE.allows({"localhost:8080", "http://localhost:8080", "token=secret"}));
    EXPECT_TRUE(OPEN.allows({"desk.example:8080", "", "", "Bearer secret"}));
}

TEST(RpcAdmission, OthersAreRefused)
{
    const Caller others[] = {
        {"localhost:8080", "", ""},
        {"localhost:8080", "", "token="},
        {"localhost:8080", "", "token=secre"},
        {"localhost:8080", "", "token=secrets"},
        {"localhost:8080", "", "x=1&token=secret"},
        {"localhost:8080", "", "", "Bearer"},
        {"localhost:8080", "", "", "Bearer page_token"},
        {"localhost:8080", "", "", "Basic secret"},
        {"localhost:8080", "", "token=secret", "Bearer wrong"},
        {"evil.example:8080", "", "token=secret"},
        {"", "", "token=secret"},
        {"localhost:8080", "http://evil.example", "token=secret"},
        {"localhost:8080", "null", "token=secret"},
        {"localhost:8080", "https://localhost:8080", "token=secret"},
    };
    for (const Caller& other : others)
        EXPECT_FALSE(HERE.allows(other)) << other.host << other.origin << other.query << other.authorization;
}

TEST(RpcAdmission, PageThatAsksForTheTokenIsForThisMachine)
{
    EXPECT_TRUE(HERE.allowsPage({"localhost:8080", "", ""}));
    EXPECT_TRUE(HERE.allowsPage({"localhost:8080", "", "token=secret"}));
    EXPECT_FALSE(HERE.allowsPage({"localhost:8080", "", "token=wrong"}));
    EXPECT_FALSE(HERE.allowsPage({"evil.example:8080", "", ""}));
    EXPECT_FALSE(HERE.allowsPage({"evil.example:8080", "", "token=secret"}));
    EXPECT_TRUE(OPEN.allowsPage({"desk.example:8080", "", ""}));
}

TEST(RpcAdmission, PagesTokenAndOriginDoNotReplaceIt)
{
    EXPECT_FALSE(OPEN.allows({"desk.example", "", "token=page_token"}));
    EXPECT_FALSE(OPEN.allows({"desk.example", "http://evil.example", "token=secret"}));
    EXPECT_FALSE(RpcAdmission(Endpoint{}, "").allows({"localhost", "", "token="}));
}

} // namespace
