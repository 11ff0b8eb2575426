#pragma once

struct mg_connection;

namespace simulator {

/// The socket of a connection, which the server library does not give out. A copy of it: it may outlive the connection.
class PeerSocket {
public:
    explicit PeerSocket(const mg_connection* connection);
    PeerSocket(const PeerSocket&) = delete;
    PeerSocket& operator=(const PeerSocket&) = delete;
    ~PeerSocket();

    /// Ends the connection, whatever the server is waiting for on it. From any thread.
    void cut() const;

    /// Has the system keep little of what the other side has not taken: it shall get what is new, not what is old.
    void keepLittle() const;

    /// Waits for ever, but not longer than the connection lives; returns whether it does.
    bool waitUntilWritable() const;

private:
    int mDescriptor = -1;
};

} // namespace simulator
