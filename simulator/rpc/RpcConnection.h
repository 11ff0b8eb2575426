#pragma once

#include "simulator/rpc/RpcFrames.h"
#include "simulator/rpc/RpcMethods.h"
#include "simulator/rpc/RpcOutbox.h"
#include "simulator/rpc/RpcScreen.h"
#include "simulator/web/PeerSocket.h"

#include <chrono>

namespace simulator {

/// A client of the test interface, from the end of the handshake on: this reads and writes what goes over its socket.
class RpcConnection {
public:
    /// So many pings in a row may stay without anything whole that comes.
    static constexpr int MOST_UNANSWERED = 3;

    /// They have to outlive it. `heartbeat` lies between two pings.
    RpcConnection(mg_connection* connection, RpcPhone& phone, ScreenWatch& watch, const RpcAbout& about,
                  RpcRendering& rendering, std::chrono::milliseconds heartbeat);
    RpcConnection(const RpcConnection&) = delete;
    RpcConnection& operator=(const RpcConnection&) = delete;

    /// Carries out what the client asks for, until one of them ends it.
    void run();

    /// There is no room for it.
    void turnAway() { finish(CloseCode::TRY_LATER); }

    /// The application has ended. From any thread.
    void tellEnd();

    /// Waits until it has been written, and lets run() return.
    void endBy(std::chrono::steady_clock::time_point deadline);

private:
    using Time = std::chrono::steady_clock::time_point;

    bool hear(FrameKind kind, std::string_view data);
    bool beat();
    void finish(CloseCode code);
    void discardTheRest() const;
    void change(const ScreenPtr& screen, const RpcMethods::Told& told);

    const PeerSocket mSocket;
    RpcRendering& mRendering;
    const std::chrono::milliseconds mHeartbeat;
    RpcOutbox mOutbox;
    RpcFrames mFrames;
    int mUnanswered = 0;
    RpcMethods mMethods; ///< goes first: whoever is called for it sends
};

} // namespace simulator
