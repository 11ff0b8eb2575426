#include "simulator/web/PortCheck.h"

#include <cerrno>
#include <cstring>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace simulator {

namespace {

/// A TCP socket for the endpoint, and its address in the system's form.
class EndpointSocket {
public:
    explicit EndpointSocket(const Endpoint& endpoint)
    {
        addrinfo hints{};
        hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
        hints.ai_socktype = SOCK_STREAM;
        if (getaddrinfo(endpoint.address.c_str(), std::to_string(endpoint.port).c_str(), &hints, &mAddress) == 0)
            mSocket = socket(mAddress->ai_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    }
    EndpointSocket(const EndpointSocket&) = delete;
    EndpointSocket& operator=(const EndpointSocket&) = delete;

    ~EndpointSocket()
    {
        if (mSocket >= 0)
            close(mSocket);
        if (mAddress != nullptr)
            freeaddrinfo(mAddress);
    }

    /// As the server will: a port that a former run has left is free.
    int tryToListen()
    {
        const int on = 1;
        if (mSocket < 0)
            return errno;
        setsockopt(mSocket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        const bool works = bind(mSocket, mAddress->ai_addr, mAddress->ai_addrlen) == 0 && listen(mSocket, 1) == 0;
        return works ? 0 : errno;
    }

    bool tryToConnect() { return mSocket >= 0 && connect(mSocket, mAddress->ai_addr, mAddress->ai_addrlen) == 0; }

private:
    addrinfo* mAddress = nullptr;
    int mSocket = -1;
};

} // namespace

std::string portProblem(const Endpoint& endpoint)
{
    const std::string port = std::to_string(endpoint.port);
    switch (const int error = EndpointSocket(endpoint).tryToListen()) {
    case 0: return {};
    case EADDRINUSE: return "Port " + port + " is busy: another program listens on it. Choose another one with --port.";
    case EACCES: return "Port " + port + " is not permitted to you. Choose one from 1024 on with --port.";
    case EADDRNOTAVAIL: return "This machine does not have the address " + endpoint.address + ".";
    default: return "Cannot listen on " + endpoint.addressAndPort() + ": " + std::strerror(error) + ".";
    }
}

bool isServed(const Endpoint& endpoint)
{
    return EndpointSocket(endpoint).tryToConnect();
}

} // namespace simulator
