#include "simulator/rpc/RpcServer.h"

#include "simulator/web/WebServer.h"
#include "unit/simulator/rpc/RpcTest.h"
#include "unit/simulator/web/WebClient.h"

#include <gmock/gmock.h>
#include <list>

namespace {

using simulator::RpcServer;
using test::masked;
using test::WebClient;
using testing::HasSubstr;
using testing::Not;

constexpr char TEXT = '\x81';
const std::string HELLO = R"({"jsonrpc":"2.0","method":"hello","id":1})";

/// A server with a page and a test interface, in the test's process.
class RpcServerTest : public test::RpcTest {
protected:
    ~RpcServerTest() override
    {
        rpc->end();
        broadcaster.end();
    }

    void askForSocket(const WebClient& client, const std::string& token, const std::string& more = "") const
    {
        client.send("GET /rpc HTTP/1.1\r\nHost: " + endpoint.addressAndPort() + "\r\nAuthorization: Bearer " + token +
                    "\r\n" + more +
                    "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
    }

    void open(WebClient& client) const
    {
        askForSocket(client, "secret");
        client.receiveUntil("HTTP/1.1 101 ");
        client.receiveUntil("\r\n\r\n");
    }

    /// False where it is refused.
    bool isAnswered(WebClient& client) const
    {
        askForSocket(client, "secret");
        std::string all;
        const auto receiveUntil = [&](const char* text) {
            while (client.isOpen() && all.find(text) == std::string::npos)
                all += client.receive(test::PATIENCE);
        };
        receiveUntil("\r\n\r\n");
        client.send(masked(TEXT, HELLO));
        receiveUntil("\"id\":1}");
        return client.isOpen();
    }

    void SetUp() override
    {
        rpc.emplace(*phone, *watch, simulator::RpcAbout{"counter"}, simulator::RpcAdmission{endpoint, "secret"},
                    heartbeat);
        server.emplace(endpoint, "", broadcaster, keys, simulator::WebServer::HEARTBEAT, &*rpc);
        ASSERT_EQ(server->error(), "");
        endpoint.port = server->port();
    }

    std::chrono::milliseconds heartbeat = RpcServer::HEARTBEAT;
    simulator::Endpoint endpoint = simulator::makeEndpoint(simulator::ANY_PORT, {}, {});
    simulator::Broadcaster broadcaster{[] { return host::Picture(); }, [] { return false; }};
    std::optional<RpcServer> rpc;
    std::optional<simulator::WebServer> server;
};

TEST_F(RpcServerTest, RequestIsAnswered)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked(TEXT, HELLO));
    EXPECT_THAT(client.receiveUntil("\"id\":1}"), HasSubstr(R"("result":{"version":1)"));
}

TEST_F(RpcServerTest, InspectorIsServedBesideIt)
{
    const auto statusOf = [&](const std::string& method, const std::string& query, const std::string& host) {
        WebClient client(endpoint.port);
        client.send(method + " /inspect" + query + " HTTP/1.1\r\nHost: " + host + "\r\n\r\n");
        return client.receiveAll().substr(0, 12);
    };
    EXPECT_EQ(statusOf("GET", "", "localhost"), "HTTP/1.1 200");
    EXPECT_EQ(statusOf("GET", "?token=secret", "localhost"), "HTTP/1.1 200");
    EXPECT_EQ(statusOf("GET", "?token=wrong", "localhost"), "HTTP/1.1 403");
    EXPECT_EQ(statusOf("GET", "", "evil.example"), "HTTP/1.1 403");
    EXPECT_EQ(statusOf("GET", "/more", "localhost"), "HTTP/1.1 404");
    EXPECT_EQ(statusOf("POST", "", "localhost"), "HTTP/1.1 405");
}

TEST_F(RpcServerTest, MessageMayComeInPieces)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked('\x01', HELLO.substr(0, 5)) + masked('\x89', "hi") + masked('\x00', HELLO.substr(5, 9)) +
                masked('\x80', HELLO.substr(14)));
    EXPECT_THAT(client.receiveUntil("\"id\":1}"), HasSubstr("\x8A\x02hi"));
}

TEST_F(RpcServerTest, SubscriberIsSentTheScreenAndEachChange)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked(TEXT, R"({"jsonrpc":"2.0","method":"subscribe","id":1})"));
    EXPECT_THAT(client.receiveUntil("\"id\":1}"), HasSubstr(R"("result":{"number":1)"));
    change();
    EXPECT_THAT(client.receiveUntil("end:\\n\"}}"),
                HasSubstr(R"({"jsonrpc":"2.0","method":"changed","params":{"missed":0,"screen":{"number":2)"));
}

TEST_F(RpcServerTest, WhoWaitsMayGo)
{
    {
        WebClient client(endpoint.port);
        open(client);
        client.send(masked(TEXT, R"({"jsonrpc":"2.0","method":"waitFor","params":{"text":"none"},"id":1})"));
        client.send(masked(TEXT, HELLO));
        client.receiveUntil("\"id\":1}");
    }
    change();
    WebClient another(endpoint.port);
    EXPECT_TRUE(isAnswered(another));
}

TEST_F(RpcServerTest, WrongTokenOpensNothing)
{
    for (const char* token : {"", "secre", "secret2"}) {
        WebClient client(endpoint.port);
        askForSocket(client, token);
        EXPECT_THAT(client.receiveAll(), Not(HasSubstr("HTTP/1.1 101 "))) << token;
    }
    WebClient client(endpoint.port);
    askForSocket(client, "secret", "Origin: http://evil.example\r\n");
    EXPECT_THAT(client.receiveAll(), Not(HasSubstr("HTTP/1.1 101 ")));
}

TEST_F(RpcServerTest, HugeMessageIsRefusedBeforeItHasCome)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(std::string("\x81\xFF\0\0\0\0\0\x01\0\x01\0\0\0\0", 14));
    EXPECT_THAT(client.receiveUntil("\x88\x02\x03\xF1"), HasSubstr("\x88"));
}

TEST_F(RpcServerTest, NothingIsCarriedOutBehindTheEnd)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked('\x80', "alone") + masked(TEXT, R"({"jsonrpc":"2.0","method":"press","params":{"key":"5"}})"));
    EXPECT_THAT(client.receiveAll(), HasSubstr("\x88\x02\x03\xEA"));
    EXPECT_EQ(handledKeys(), "");
}

TEST_F(RpcServerTest, BinaryMessageEndsTheConnection)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked('\x82', HELLO));
    client.receiveAll();
    EXPECT_FALSE(client.isOpen());
}

class RpcHeartbeatTest : public RpcServerTest {
protected:
    RpcHeartbeatTest() { heartbeat = std::chrono::milliseconds(1); }
};

TEST_F(RpcHeartbeatTest, WhoIsGoneWithoutAWordLosesHisPlace)
{
    WebClient client(endpoint.port);
    open(client);
    EXPECT_THAT(client.receiveAll(), HasSubstr(std::string("\x89\0", 2)));
    EXPECT_FALSE(client.isOpen());
}

TEST_F(RpcServerTest, EndIsTold)
{
    WebClient client(endpoint.port);
    open(client);
    client.send(masked(TEXT, HELLO));
    client.receiveUntil("\"id\":1}");
    rpc->end();
    EXPECT_THAT(client.receiveAll(), HasSubstr(R"({"jsonrpc":"2.0","method":"ended"})"
                                               "\x88\x02\x03\xE9"));
}

TEST_F(RpcServerTest, ThirtyThirdClientFindsNoRoomUntilOneLeaves)
{
    std::list<WebClient> clients;
    for (int i = 0; i < RpcServer::MOST_CLIENTS; ++i)
        EXPECT_TRUE(isAnswered(clients.emplace_back(endpoint.port)));
    WebClient late(endpoint.port);
    EXPECT_FALSE(isAnswered(late));
    clients.pop_front();
    EXPECT_TRUE(test::becomesTrue([this] {
        WebClient again(endpoint.port);
        return isAnswered(again);
    }));
}

} // namespace
