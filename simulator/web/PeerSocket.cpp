#include "simulator/web/PeerSocket.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <civetweb.h>
#include <fcntl.h>
#include <filesystem>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr int NONE = -1;

using GetName = int (*)(int, sockaddr*, socklen_t*);

/// "127.0.0.1 8080", as the server library has it; empty where the descriptor is no connected socket.
std::string nameOf(int descriptor, GetName getName)
{
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    char host[NI_MAXHOST];
    char port[NI_MAXSERV];
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (getName(descriptor, any, &size) != 0 ||
        getnameinfo(any, size, host, sizeof host, port, sizeof port, NI_NUMERICHOST | NI_NUMERICSERV) != 0)
        return {};
    return std::string(host) + ' ' + port;
}

bool belongsTo(int descriptor, const mg_request_info& request)
{
    return nameOf(descriptor, getpeername) == request.remote_addr + (' ' + std::to_string(request.remote_port)) &&
           nameOf(descriptor, getsockname).ends_with(' ' + std::to_string(request.server_port));
}

/// Looks again at the copy: meanwhile the number may have become another one's.
int copyIfOf(int descriptor, const mg_request_info& request)
{
    const int copy = belongsTo(descriptor, request) ? fcntl(descriptor, F_DUPFD_CLOEXEC, 0) : NONE;
    if (copy == NONE || belongsTo(copy, request))
        return copy;
    close(copy);
    return NONE;
}

int numberOf(const std::filesystem::path& entry)
{
    const std::string name = entry.filename();
    int number = NONE;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

} // namespace

PeerSocket::PeerSocket(const mg_connection* connection)
{
    const mg_request_info& request = *mg_get_request_info(connection);
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error))
        if ((mDescriptor = copyIfOf(numberOf(entry.path()), request)) != NONE)
            return;
}

PeerSocket::~PeerSocket()
{
    if (mDescriptor != NONE)
        close(mDescriptor);
}

void PeerSocket::cut() const
{
    shutdown(mDescriptor, SHUT_RDWR);
}

void PeerSocket::keepLittle() const
{
    constexpr int BYTES = 65'536;
    setsockopt(mDescriptor, SOL_SOCKET, SO_SNDBUF, &BYTES, sizeof BYTES);
}

void PeerSocket::end() const
{
    shutdown(mDescriptor, SHUT_WR);
}

void PeerSocket::cutAfterTheOther() const
{
    using std::chrono::steady_clock;
    std::array<char, 16'384> rest;
    const auto end = steady_clock::now() + std::chrono::seconds(1);
    for (auto now = steady_clock::now(); now < end; now = steady_clock::now())
        if (!waitUntilReadable(std::chrono::ceil<std::chrono::milliseconds>(end - now)) ||
            read(rest.data(), rest.size()) == 0)
            break;
    cut();
}

std::optional<std::size_t> PeerSocket::write(std::string_view bytes) const
{
    for (;;) {
        const ssize_t count = send(mDescriptor, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno == EAGAIN || errno == EWOULDBLOCK)
            return 0;
        if (errno != EINTR)
            return {};
    }
}

bool PeerSocket::waitUntilReadable(std::chrono::milliseconds limit) const
{
    pollfd event{mDescriptor, POLLIN, 0};
    return poll(&event, 1, static_cast<int>(limit.count())) > 0;
}

bool PeerSocket::isEnded() const
{
    pollfd event{mDescriptor, POLLRDHUP, 0};
    return poll(&event, 1, 0) > 0;
}

std::size_t PeerSocket::read(char* buffer, std::size_t size) const
{
    for (;;) {
        const ssize_t count = recv(mDescriptor, buffer, size, 0);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno == EAGAIN || errno == EWOULDBLOCK)
            waitUntilReadable(std::chrono::hours(1));
        else if (errno != EINTR)
            return 0;
    }
}

bool PeerSocket::waitUntilWritable() const
{
    constexpr int FOR_EVER = -1;
    pollfd event{mDescriptor, POLLOUT, 0};
    while (mDescriptor != NONE && poll(&event, 1, FOR_EVER) < 0)
        if (errno != EINTR)
            return false;
    return (event.revents & (POLLERR | POLLHUP | POLLNVAL)) == 0;
}

} // namespace simulator
