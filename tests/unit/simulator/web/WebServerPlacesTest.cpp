#include "simulator/web/WebServer.h"

#include "support/Worker.h"
#include "unit/simulator/web/ServerTest.h"

#include <gmock/gmock.h>
#include <list>

namespace {

using simulator::Broadcaster;
using test::WebClient;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string STANDS = R"({"standing":true})";
const std::string GOES_ON = R"({"standing":false})";
const std::string FULL = R"({"full":16})";
const std::string FRAME = "\x82";
const std::string END("\x88\x00", 2);

/// What pages hear that have a place, and those that have none. Nobody answers pings, and nobody has to within a test.
class WebServerPlacesTest : public test::ServerTest {
protected:
    WebServerPlacesTest() : ServerTest(simulator::WebServer::HEARTBEAT * 100) {}

    void openAll()
    {
        for (std::size_t i = 0; i < Broadcaster::MOST_PAGES; ++i)
            openSocket(clients.emplace_back(endpoint.port));
        waitForPages(Broadcaster::MOST_PAGES);
    }

    void waitForPages(std::size_t count) const
    {
        test::waitUntil([&] { return broadcaster.pageCount() == count; });
    }

    std::list<WebClient> clients;
};

TEST_F(WebServerPlacesTest, GreetingComesBeforeEverythingElse)
{
    WebClient client(endpoint.port);
    openSocket(client);
    EXPECT_EQ(client.receiveUntil("Good morning"), "\x81\x0CGood morning");
    client.receiveUntil(FRAME);
}

TEST_F(WebServerPlacesTest, PageHearsOnceThatTheTelephoneStandsStillAndThatItGoesOn)
{
    WebClient early(endpoint.port);
    openSocket(early);
    EXPECT_THAT(early.receiveUntil(FRAME), Not(HasSubstr("standing")));
    standsStill = true;
    early.receiveUntil(STANDS);
    WebClient late(endpoint.port);
    openSocket(late);
    late.receiveUntil(STANDS);
    standsStill = false;
    EXPECT_THAT(early.receiveUntil(GOES_ON), Not(HasSubstr(STANDS)));
    late.receiveUntil(GOES_ON);
}

TEST_F(WebServerPlacesTest, StandstillIsToldBeforeAPictureThatWaitsForIt)
{
    test::Gate gate;
    painted = &gate;
    standsStill = true;
    WebClient client(endpoint.port);
    openSocket(client);
    client.receiveUntil(STANDS);
    gate.open();
    client.receiveUntil(FRAME);
}

TEST_F(WebServerPlacesTest, EndIsTold)
{
    WebClient client(endpoint.port);
    openSocket(client);
    waitForPages(1);
    broadcaster.end();
    client.receiveUntil(R"({"ended":true})");
    client.receiveUntil(END);
}

TEST_F(WebServerPlacesTest, SeventeenthPageHearsThatThereIsNoRoomUntilOneLeaves)
{
    openAll();
    WebClient late(endpoint.port);
    openSocket(late);
    EXPECT_THAT(late.receiveUntil(FULL + END), Not(HasSubstr(FRAME)));
    EXPECT_EQ(broadcaster.pageCount(), Broadcaster::MOST_PAGES);
    clients.pop_front();
    waitForPages(Broadcaster::MOST_PAGES - 1);
    WebClient again(endpoint.port);
    openSocket(again);
    EXPECT_THAT(again.receiveUntil(FRAME), Not(HasSubstr(FULL)));
    EXPECT_EQ(broadcaster.pageCount(), Broadcaster::MOST_PAGES);
}

TEST_F(WebServerPlacesTest, OnlyFourAtATimeHearThatThereIsNoRoom)
{
    openAll();
    {
        std::list<WebClient> late;
        for (int i = 0; i < 4; ++i) {
            openSocket(late.emplace_back(endpoint.port));
            late.back().receiveUntil(FULL);
        }
        WebClient flood(endpoint.port);
        askForSocket(flood);
        EXPECT_THAT(flood.receiveAll(), Not(StartsWith("HTTP/1.1 101 ")));
    }
    test::waitUntil([this] {
        WebClient later(endpoint.port);
        askForSocket(later);
        return later.receive(test::PATIENCE).starts_with("HTTP/1.1 101 ");
    });
}

} // namespace
