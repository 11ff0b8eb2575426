#include "simulator/web/WebServer.h"

#include "host/frontend/Wire.h"
#include "support/Worker.h"
#include "unit/simulator/web/ServerTest.h"

#include <gmock/gmock.h>

namespace {

using test::masked;
using test::WebClient;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds HEARTBEAT = 50ms;

const std::string PING("\x89\x00", 2);

class WebServerTest : public test::ServerTest {
protected:
    WebServerTest() : ServerTest(HEARTBEAT) {}

    /// Waits for the end of the connection, and for the place to be free.
    void expectCut(WebClient& client)
    {
        client.receiveAll();
        EXPECT_FALSE(client.isOpen());
        test::waitUntil([this] { return broadcaster.pageCount() == 0; });
    }
};

TEST_F(WebServerTest, PageIsServedUnderNamesOfThisMachine)
{
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: localhost"), StartsWith("HTTP/1.1 200 "));
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: LOCALHOST"), StartsWith("HTTP/1.1 200 "));
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: example.org"), StartsWith("HTTP/1.1 403 "));
}

TEST_F(WebServerTest, InspectorIsNotThereWithoutATestInterface)
{
    const std::string answer = answerTo("GET /inspect HTTP/1.1\r\nHost: localhost");
    EXPECT_THAT(answer, StartsWith("HTTP/1.1 404 "));
    EXPECT_THAT(answer, HasSubstr("phone --rpc"));
}

TEST_F(WebServerTest, NobodyElsesPageIsAllowedToRead)
{
    for (const char* method : {"GET", "OPTIONS", "POST"})
        for (const char* host : {"localhost", "example.org"})
            EXPECT_THAT(answerTo(std::string(method) + " / HTTP/1.1\r\nHost: " + host +
                                 "\r\nOrigin: http://example.org\r\nAccess-Control-Request-Method: GET"),
                        Not(HasSubstr("Access-Control-Allow-")))
                << method << ' ' << host;
}

TEST_F(WebServerTest, SilentPageLosesItsPlace)
{
    WebClient client(endpoint.port);
    openSocket(client);
    expectCut(client);
}

TEST_F(WebServerTest, HalfAFrameDoesNotKeepThePlace)
{
    for (std::size_t part : {1, 3, 8}) {
        WebClient client(endpoint.port);
        openSocket(client);
        client.send(masked('\x81', "down ok").substr(0, part));
        SCOPED_TRACE(part);
        expectCut(client);
    }
}

TEST_F(WebServerTest, FrameThatComesByteByByteDoesNotKeepThePlace)
{
    WebClient client(endpoint.port);
    openSocket(client);
    client.send(std::string("\x81\xFE\x03\xFF\0\0\0\0", 8));
    const auto end = steady_clock::now() + test::PATIENCE;
    for (; client.isOpen() && steady_clock::now() < end; client.receive(HEARTBEAT / 2))
        client.send("x");
    expectCut(client);
}

TEST_F(WebServerTest, FrameThatIsTooLongOrAgainstTheRulesIsRefusedBeforeItHasCome)
{
    const std::string tooBig("\x88\x02\x03\xF1"), protocolError("\x88\x02\x03\xEA"), unsupported("\x88\x02\x03\xEB");
    const std::pair<std::string, std::string> wrong[] = {
        {std::string("\x81\xFE\x04\x01", 4) + "abcd", tooBig}, // a byte more than there may be
        {"\x81\xFF\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
         "abcd",
         tooBig},
        {masked('\x01', "down") + std::string("\x80\xFE\x03\xFF", 4) + "abcd", tooBig},
        {masked('\x80', "ok"), protocolError},
        {"\x81\x02up", protocolError}, // not masked
        {masked('\x82', ""), unsupported}};
    for (const auto& [bytes, end] : wrong) {
        WebClient client(endpoint.port);
        openSocket(client);
        client.send(bytes);
        EXPECT_THAT(client.receiveAll(), EndsWith(end)) << testing::PrintToString(bytes);
    }
}

TEST_F(WebServerTest, MessageMayComeInPieces)
{
    const host::Wire wire("exchange", [](std::string_view line) { return "no " + std::string(line); });
    WebClient client(endpoint.port);
    openSocket(client);
    client.send(masked('\x01', "exchange 47") + masked('\x89', "") + masked('\x80', "11 calls"));
    client.receiveUntil(R"({"answer":"no 4711 calls"})");
}

TEST_F(WebServerTest, PageThatAnswersKeepsItsPlace)
{
    WebClient client(endpoint.port);
    openSocket(client);
    for (int round = 0; round < 10; ++round) {
        client.receiveUntil(PING);
        client.send(masked('\x8A', ""));
    }
    EXPECT_TRUE(client.isOpen());
    EXPECT_EQ(broadcaster.pageCount(), 1u);
}

TEST_F(WebServerTest, ExchangeAnswersThePageThatAsks)
{
    const host::Wire wire("exchange", [](std::string_view line) { return "no " + std::string(line); });
    WebClient client(endpoint.port);
    openSocket(client);
    client.send(masked('\x81', "exchange 4711 calls"));
    client.receiveUntil(R"({"answer":"no 4711 calls"})");
}

TEST_F(WebServerTest, WithoutAnExchangeThatIsAnswered)
{
    WebClient client(endpoint.port);
    openSocket(client);
    client.send(masked('\x81', "exchange 4711 calls"));
    client.receiveUntil(R"({"answer":"the program has no exchange"})");
}

TEST_F(WebServerTest, PagesHearOfTheExchangeAsItComesAndGoes)
{
    WebClient client(endpoint.port);
    openSocket(client);
    broadcaster.exchangeChanged({{{"Ada", "4711 calls"}}});
    client.receiveUntil(R"({"exchange":[{"label":"Ada","line":"4711 calls"}]})");
    broadcaster.exchangeChanged({});
    client.receiveUntil(R"({"exchange":null})");
}

TEST_F(WebServerTest, PagesHearOfTheLampAndTheHandset)
{
    WebClient client(endpoint.port);
    openSocket(client);
    broadcaster.signsChanged({host::CallSigns::Lamp::BLINKS, true});
    client.receiveUntil(R"({"signs":{"lamp":"blinks","lifted":true}})");
    broadcaster.signsChanged({});
    client.receiveUntil(R"({"signs":{"lamp":"dark","lifted":false}})");
}

TEST_F(WebServerTest, PingIsAnswered)
{
    WebClient client(endpoint.port);
    openSocket(client);
    client.send(masked('\x89', "hello"));
    client.receiveUntil("\x8A\x05hello");
}

} // namespace
