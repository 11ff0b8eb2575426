#include "simulator/web/WebServer.h"

#include "simulator/web/PortCheck.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using simulator::Broadcaster;
using simulator::Endpoint;
using simulator::KeyPad;
using simulator::WebServer;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds PATIENCE = 30s;
constexpr milliseconds HEARTBEAT = 50ms;

const std::string PING("\x89\x00", 2);

/// What a browser sends is masked; these are, with zeros.
std::string masked(char kind, const std::string& text)
{
    return std::string{kind, static_cast<char>(0x80 | text.size()), 0, 0, 0, 0} + text;
}

/// Talks to the server byte by byte.
class Client {
public:
    explicit Client(int port)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(connect(mSocket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;
    ~Client() { close(mSocket); }

    /// Into the void where the server has closed the connection.
    void send(const std::string& bytes) const { ::send(mSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL); }

    /// What comes within that time; empty when nothing does.
    std::string receive(milliseconds limit = PATIENCE)
    {
        pollfd event{mSocket, POLLIN, 0};
        char buffer[4096];
        if (poll(&event, 1, static_cast<int>(limit.count())) <= 0)
            return {};
        const ssize_t count = recv(mSocket, buffer, sizeof buffer, 0);
        mIsOpen = count > 0;
        return {buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

    /// Everything up to where the server closes the connection.
    std::string receiveAll()
    {
        std::string all;
        for (const auto end = steady_clock::now() + PATIENCE; mIsOpen && steady_clock::now() < end;)
            all += receive();
        return all;
    }

    std::string receiveUntil(const std::string& text)
    {
        std::string all;
        for (const auto end = steady_clock::now() + PATIENCE; mIsOpen && steady_clock::now() < end;)
            if ((all += receive(HEARTBEAT)).find(text) != std::string::npos)
                return all;
        ADD_FAILURE() << "nothing has come with " << testing::PrintToString(text);
        return all;
    }

    bool isOpen() const { return mIsOpen; }

private:
    int mSocket = socket(AF_INET, SOCK_STREAM, 0);
    bool mIsOpen = true;
};

class WebServerTest : public testing::Test {
protected:
    WebServerTest() { EXPECT_EQ(server.error(), ""); }
    ~WebServerTest() override { broadcaster.end(); }

    std::string answerTo(const std::string& request) const
    {
        Client client(endpoint.port);
        client.send(request + "\r\n\r\n");
        return client.receiveAll();
    }

    void openSocket(Client& client) const
    {
        const std::string name = endpoint.addressAndPort();
        client.send("GET /socket HTTP/1.1\r\nHost: " + name + "\r\nOrigin: http://" + name +
                    "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
        client.receiveUntil("HTTP/1.1 101 ");
    }

    static Endpoint freeEndpoint()
    {
        Endpoint endpoint;
        endpoint.port = freePort(endpoint);
        return endpoint;
    }

    const Endpoint endpoint = freeEndpoint();
    KeyPad keys;
    std::atomic<bool> standsStill{false};
    Broadcaster broadcaster{[] {
                                return host::Picture{8, 8, std::vector<std::uint8_t>(64), {}, 1};
                            },
                            [this] { return standsStill.load(); }};
    WebServer server{endpoint, "Good morning", broadcaster, keys, HEARTBEAT};
};

TEST_F(WebServerTest, PageIsServedUnderNamesOfThisMachine)
{
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: localhost"), StartsWith("HTTP/1.1 200 "));
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: LOCALHOST"), StartsWith("HTTP/1.1 200 "));
    EXPECT_THAT(answerTo("GET / HTTP/1.1\r\nHost: example.org"), StartsWith("HTTP/1.1 403 "));
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
    Client client(endpoint.port);
    openSocket(client);
    client.receiveAll();
    EXPECT_FALSE(client.isOpen());
}

TEST_F(WebServerTest, HalfAFrameDoesNotKeepThePlace)
{
    for (std::size_t part : {1, 3, 8}) {
        Client client(endpoint.port);
        openSocket(client);
        client.send(masked('\x81', "down ok").substr(0, part));
        client.receiveAll();
        EXPECT_FALSE(client.isOpen()) << part;
    }
}

TEST_F(WebServerTest, FrameThatComesByteByByteDoesNotKeepThePlace)
{
    Client client(endpoint.port);
    openSocket(client);
    client.send(std::string("\x81\xFE\x7F\xFF\0\0\0\0", 8));
    const auto end = steady_clock::now() + PATIENCE;
    for (; client.isOpen() && steady_clock::now() < end; client.receive(HEARTBEAT / 2))
        client.send("x");
    EXPECT_FALSE(client.isOpen());
}

TEST_F(WebServerTest, PageThatAnswersKeepsItsPlace)
{
    Client client(endpoint.port);
    openSocket(client);
    for (int round = 0; round < 10; ++round) {
        client.receiveUntil(PING);
        client.send(masked('\x8A', ""));
    }
    EXPECT_TRUE(client.isOpen());
    EXPECT_EQ(broadcaster.pageCount(), 1u);
}

TEST_F(WebServerTest, PingIsAnswered)
{
    Client client(endpoint.port);
    openSocket(client);
    client.send(masked('\x89', "hello"));
    client.receiveUntil("\x8A\x05hello");
}

} // namespace
