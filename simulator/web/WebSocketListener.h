#pragma once

#include "simulator/web/WebSocketFrames.h"

#include <chrono>
#include <functional>

namespace simulator {

class PeerSocket;

/// Hears what comes over a WebSocket, from the end of the handshake on, and cuts it where nobody is there any more. The
/// server library gets nothing to read: it would take a frame of any length whole, and wait for ever for the rest of
/// it.
class WebSocketListener {
public:
    /// So many pings in a row may stay without anything whole that comes.
    static constexpr int MOST_UNANSWERED = 3;

    /// The socket has to outlive it. `longest` is a message's; `heartbeat` lies between two pings.
    WebSocketListener(const PeerSocket& socket, std::size_t longest, std::chrono::milliseconds heartbeat);

    /// Until `hear` or `ping`, which writes one, wants no more, or nothing comes any more. Why the connection has to
    /// end, where what has come is to blame.
    CloseCode run(const WebSocketFrames::Hear& hear, const std::function<bool()>& ping);

private:
    using Time = std::chrono::steady_clock::time_point;

    bool beat(const std::function<bool()>& ping);

    const PeerSocket& mSocket;
    WebSocketFrames mFrames;
    const std::chrono::milliseconds mHeartbeat;
    int mUnanswered = 0;
};

} // namespace simulator
