#include "simulator/web/Admission.h"

#include <gtest/gtest.h>

namespace {

using simulator::Admission;
using simulator::Caller;
using simulator::Endpoint;

const Admission LOCAL(Endpoint{});
const Admission WITH_TOKEN(Endpoint{"0.0.0.0", 8080, "secret_42"});

TEST(Admission, PageIsForNamesOfThisMachine)
{
    for (const char* host : {"127.0.0.1:8080", "localhost:8080", "localhost", "[::1]:8080", "[::1]", "localhost:9000",
                             "LOCALHOST:8080", "LocalHost"})
        EXPECT_TRUE(LOCAL.allowsPage({host, "", ""})) << host;
}

TEST(Admission, PageIsNotForOtherNamesThatPointHere)
{
    for (const char* host : {"", "evil.example", "evil.example:8080", "127.0.0.1.evil.example:8080", "localhost.evil:1",
                             "10.0.0.7:8080", "::1"})
        EXPECT_FALSE(LOCAL.allowsPage({host, "", ""})) << host;
}

TEST(Admission, SocketIsForThePageFromHere)
{
    EXPECT_TRUE(LOCAL.allowsSocket({"localhost:8080", "http://localhost:8080", ""}));
    EXPECT_TRUE(LOCAL.allowsSocket({"LOCALHOST:8080", "http://localhost:8080", ""}));
}

TEST(Admission, SocketIsNotForPagesFromElsewhere)
{
    for (const char* origin : {"", "null", "http://evil.example", "http://localhost", "http://localhost:9000",
                               "https://localhost:8080", "http://127.0.0.1:8080"})
        EXPECT_FALSE(LOCAL.allowsSocket({"localhost:8080", origin, ""})) << origin;
}

TEST(Admission, TokenOpensPageAndSocketUnderAnyName)
{
    EXPECT_TRUE(WITH_TOKEN.allowsPage({"desk.example", "", "token=secret_42"}));
    EXPECT_TRUE(WITH_TOKEN.allowsPage({"desk.example", "", "token=secret_42&x=1"}));
    EXPECT_TRUE(WITH_TOKEN.allowsSocket({"desk.example", "http://desk.example", "token=secret_42"}));
}

TEST(Admission, WrongTokenOpensNothing)
{
    for (const char* query : {"", "token=", "token=secret_4", "token=secret_421", "token=Secret_42", "secret_42",
                              "x=1&token=secret_42", "token=secret_42%00"}) {
        EXPECT_FALSE(WITH_TOKEN.allowsPage({"localhost", "", query})) << query;
        EXPECT_FALSE(WITH_TOKEN.allowsSocket({"localhost", "http://localhost", query})) << query;
    }
}

TEST(Admission, TokenDoesNotReplaceTheOrigin)
{
    EXPECT_FALSE(WITH_TOKEN.allowsSocket({"desk.example", "http://evil.example", "token=secret_42"}));
}

} // namespace
