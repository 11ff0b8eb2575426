#pragma once

#include "simulator/rpc/RpcMethods.h"
#include "simulator/rpc/RpcOutbox.h"
#include "simulator/rpc/RpcScreen.h"
#include "simulator/web/PeerSocket.h"
#include "simulator/web/WebSocketListener.h"

#include <chrono>

namespace simulator {

/// A client of the test interface, from the end of the handshake on: this reads and writes what goes over its socket.
class RpcConnection {
public:
    static constexpr std::size_t LONGEST_MESSAGE = 65'536;

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
    void finish(CloseCode code);
    void change(const ScreenPtr& screen, const RpcMethods::Told& told);

    const PeerSocket mSocket;
    RpcRendering& mRendering;
    WebSocketListener mListener;
    RpcOutbox mOutbox;
    RpcMethods mMethods; ///< goes first: whoever is called for it sends
};

} // namespace simulator
