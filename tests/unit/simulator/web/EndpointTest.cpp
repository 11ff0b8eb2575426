#include "simulator/web/Endpoint.h"

#include "simulator/web/PortCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using simulator::Endpoint;
using simulator::endpointError;
using simulator::makeEndpoint;
using simulator::portProblem;
using testing::HasSubstr;

/// Listens on a port of this machine that was free.
class Listener {
public:
    Listener()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        EXPECT_EQ(bind(mSocket, reinterpret_cast<sockaddr*>(&address), size), 0);
        EXPECT_EQ(listen(mSocket, 1), 0);
        getsockname(mSocket, reinterpret_cast<sockaddr*>(&address), &size);
        port = ntohs(address.sin_port);
    }
    ~Listener() { close(mSocket); }

    int port = 0;

private:
    int mSocket = socket(AF_INET, SOCK_STREAM, 0);
};

TEST(Endpoint, IsForThisMachineOnly)
{
    const Endpoint endpoint = makeEndpoint("8080", {}, {});
    EXPECT_EQ(endpoint.addressAndPort(), "127.0.0.1:8080");
    EXPECT_EQ(endpoint.url(), "http://127.0.0.1:8080/");
}

TEST(Endpoint, OtherAddressCarriesItsToken)
{
    EXPECT_EQ(makeEndpoint("80", "10.0.0.7", "secret_42").url(), "http://10.0.0.7:80/?token=secret_42");
    EXPECT_EQ(makeEndpoint("80", "0.0.0.0", "secret_42").url(), "http://127.0.0.1:80/?token=secret_42");
}

TEST(Endpoint, PortIsANumberFrom1To65535)
{
    EXPECT_EQ(endpointError("1", {}, {}), "");
    EXPECT_EQ(endpointError("65535", {}, {}), "");
    for (const char* port : {"", "0", "-1", "65536", "80a", " 80", "4294967376", "http"})
        EXPECT_THAT(endpointError(port, {}, {}), HasSubstr("a number from 1 to 65535")) << port;
}

TEST(Endpoint, AddressAndTokenGoTogether)
{
    EXPECT_EQ(endpointError("80", "0.0.0.0", "secret_42"), "");
    EXPECT_THAT(endpointError("80", "0.0.0.0", {}), HasSubstr("go together"));
    EXPECT_THAT(endpointError("80", {}, "secret_42"), HasSubstr("go together"));
}

TEST(Endpoint, AddressIsNumeric)
{
    for (const char* address : {"", "localhost", "1.2.3", "1.2.3.4.5", "[::1]", "::1::"})
        EXPECT_THAT(endpointError("80", address, "secret_42"), HasSubstr("is no IP address")) << address;
}

TEST(Endpoint, AddressThatCannotBeServedIsRefused)
{
    for (const char* address : {"::", "::1", "fe80::1", "::ffff:127.0.0.1"})
        EXPECT_THAT(endpointError("80", address, "secret_42"), HasSubstr("knows IPv4 only")) << address;
}

TEST(Endpoint, TokenNeedsNoEscape)
{
    for (const char* token : {"", "short", "with space", "with&ersand", "mit-ümlaut"})
        EXPECT_THAT(endpointError("80", "0.0.0.0", token), HasSubstr("The token must have")) << token;
}

TEST(PortCheck, BusyPortIsTold)
{
    const Listener listener;
    const Endpoint endpoint = makeEndpoint(std::to_string(listener.port), {}, {});
    EXPECT_THAT(portProblem(endpoint), HasSubstr("is busy"));
    EXPECT_TRUE(isServed(endpoint));
}

TEST(PortCheck, FreePortIsFine)
{
    const int port = Listener().port;
    const Endpoint endpoint = makeEndpoint(std::to_string(port), {}, {});
    EXPECT_EQ(portProblem(endpoint), "");
    EXPECT_FALSE(isServed(endpoint));
}

TEST(PortCheck, PortThatTheSystemChoosesIsFine)
{
    EXPECT_EQ(portProblem(makeEndpoint("0", {}, {})), "");
    EXPECT_THAT(portProblem(makeEndpoint("0", "192.0.2.1", "secret_42")), HasSubstr("does not have the address"));
}

TEST(PortCheck, ForeignAddressIsTold)
{
    EXPECT_THAT(portProblem(makeEndpoint("8080", "192.0.2.1", "secret_42")), HasSubstr("does not have the address"));
}

} // namespace
