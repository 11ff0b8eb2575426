#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>

struct mg_connection;

namespace simulator {

/// The socket of a connection, which the server library does not give out. A copy of it: it may outlive the connection.
class PeerSocket {
public:
    explicit PeerSocket(const mg_connection* connection);
    PeerSocket(const PeerSocket&) = delete;
    PeerSocket& operator=(const PeerSocket&) = delete;
    ~PeerSocket();

    /// Whether there is one: everything below fails without.
    bool isThere() const { return mDescriptor != -1; }

    /// Ends the connection, whatever the server is waiting for on it. From any thread.
    void cut() const;

    /// Has the system keep little of what the other side has not taken: it shall get what is new, not what is old.
    void keepLittle() const;

    /// Says that nothing more is to come. What has been written arrives.
    void end() const;

    /// Cuts it when the other side has ended it as well, or does not within a second: who closes a connection that
    /// still has something to be read takes away what he has written last.
    void cutAfterTheOther() const;

    /// Writes what goes without waiting: so many bytes. Nothing where the connection is gone.
    std::optional<std::size_t> write(std::string_view bytes) const;

    /// Waits until something has come, or the connection is gone; returns whether it is so.
    bool waitUntilReadable(std::chrono::milliseconds limit) const;

    /// Whether the other side writes nothing more behind what is there.
    bool isEnded() const;

    /// Reads what is there, or waits for it; 0 where nothing comes any more.
    std::size_t read(char* buffer, std::size_t size) const;

    /// Waits for ever, but not longer than the connection lives; returns whether it does.
    bool waitUntilWritable() const;

private:
    int mDescriptor = -1;
};

} // namespace simulator
