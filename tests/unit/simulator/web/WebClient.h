#pragma once

#include "support/Gate.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

namespace test {

/// What a browser sends is masked; these are, with zeros.
inline std::string masked(char kind, const std::string& text)
{
    return std::string{kind, static_cast<char>(0x80 | text.size()), 0, 0, 0, 0} + text;
}

/// Talks to a server of this machine byte by byte.
class WebClient {
public:
    explicit WebClient(int port)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(connect(mSocket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    WebClient(const WebClient&) = delete;
    WebClient& operator=(const WebClient&) = delete;
    ~WebClient() { close(mSocket); }

    /// Into the void where the server has closed the connection.
    void send(const std::string& bytes) const { ::send(mSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL); }

    /// What is there, or comes within that time; empty when nothing does.
    std::string receive(std::chrono::milliseconds limit)
    {
        if (mUnread.empty())
            listen(limit);
        return std::exchange(mUnread, {});
    }

    /// Everything up to where the server closes the connection.
    std::string receiveAll()
    {
        listenUntil([this] { return !mIsOpen; });
        return std::exchange(mUnread, {});
    }

    /// Everything up to the end of that text. What comes behind it is left for later.
    std::string receiveUntil(const std::string& text)
    {
        listenUntil([&] { return mUnread.find(text) != std::string::npos; });
        const auto found = mUnread.find(text);
        EXPECT_NE(found, std::string::npos) << "nothing has come with " << testing::PrintToString(text);
        const std::size_t size = found == std::string::npos ? mUnread.size() : found + text.size();
        const std::string all = mUnread.substr(0, size);
        mUnread.erase(0, size);
        return all;
    }

    bool isOpen() const { return mIsOpen; }

private:
    template <typename Condition>
    void listenUntil(Condition isEnough)
    {
        const auto end = std::chrono::steady_clock::now() + PATIENCE;
        while (!isEnough() && mIsOpen && std::chrono::steady_clock::now() < end)
            listen(PATIENCE);
    }

    void listen(std::chrono::milliseconds limit)
    {
        pollfd event{mSocket, POLLIN, 0};
        char buffer[4096];
        if (poll(&event, 1, static_cast<int>(limit.count())) <= 0)
            return;
        const ssize_t count = recv(mSocket, buffer, sizeof buffer, 0);
        mIsOpen = count > 0;
        mUnread.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }

    int mSocket = socket(AF_INET, SOCK_STREAM, 0);
    bool mIsOpen = true;
    std::string mUnread;
};

} // namespace test
