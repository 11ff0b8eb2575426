#pragma once

#include "simulator/web/WebServer.h"
#include "support/Gate.h"
#include "unit/simulator/web/WebClient.h"

#include <atomic>

namespace test {

/// A server with an empty panel, in the test's process.
class ServerTest : public testing::Test {
protected:
    explicit ServerTest(std::chrono::milliseconds heartbeat)
        : server(endpoint, "Good morning", broadcaster, keys, heartbeat)
    {
        EXPECT_EQ(server.error(), "");
        endpoint.port = server.port();
    }
    ~ServerTest() override { broadcaster.end(); }

    std::string answerTo(const std::string& request) const
    {
        WebClient client(endpoint.port);
        client.send(request + "\r\n\r\n");
        return client.receiveAll();
    }

    void askForSocket(const WebClient& client) const
    {
        const std::string name = endpoint.addressAndPort();
        client.send("GET /socket HTTP/1.1\r\nHost: " + name + "\r\nOrigin: http://" + name +
                    "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
    }

    void openSocket(WebClient& client) const
    {
        askForSocket(client);
        client.receiveUntil("HTTP/1.1 101 ");
        client.receiveUntil("\r\n\r\n");
    }

    host::Picture picture() const
    {
        Gate* const gate = painted;
        EXPECT_TRUE(gate == nullptr || gate->wait());
        return {8, 8, std::vector<std::uint8_t>(64), {}, 1};
    }

    simulator::Endpoint endpoint = simulator::makeEndpoint(simulator::ANY_PORT, {}, {});
    simulator::KeyPad keys;
    std::atomic<bool> standsStill{false};
    std::atomic<Gate*> painted{nullptr}; ///< a picture waits for it, where there is one
    simulator::Broadcaster broadcaster{[this] { return picture(); }, [this] { return standsStill.load(); }};
    simulator::WebServer server;
};

} // namespace test
