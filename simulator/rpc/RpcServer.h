#pragma once

#include "simulator/rpc/RpcAdmission.h"
#include "simulator/rpc/RpcMethods.h"
#include "simulator/rpc/RpcScreen.h"

#include <chrono>
#include <memory>
#include <mutex>
#include <set>

struct mg_connection;
struct mg_context;

namespace simulator {

class RpcConnection;

/// The test interface's socket, on a server of somebody else's. Has to outlive that one.
class RpcServer {
public:
    static constexpr int MOST_CLIENTS = 32;

    /// Who says nothing whole for some of these is gone; a minute, because a client may stand in a debugger.
    static constexpr std::chrono::milliseconds HEARTBEAT{20'000};

    /// Phone and watch have to outlive it. `heartbeat` lies between two pings.
    RpcServer(RpcPhone& phone, ScreenWatch& watch, RpcAbout about, RpcAdmission admission,
              std::chrono::milliseconds heartbeat = HEARTBEAT);
    RpcServer(const RpcServer&) = delete;
    RpcServer& operator=(const RpcServer&) = delete;
    ~RpcServer();

    void attachTo(mg_context* server);

    const RpcAdmission& admission() const { return mAdmission; }

    /// Tells all clients that the application has ended, and takes no further ones. Waits until they have been told, as
    /// the server writes nothing once it stops; a second at most for who does not read. May be called again.
    void end();

private:
    static int connecting(const mg_connection* connection, void* self);
    static void connected(mg_connection* connection, void* self);
    static int received(mg_connection* connection, int bits, char* data, std::size_t size, void* self);

    bool add(const std::shared_ptr<RpcConnection>& client);
    void remove(const std::shared_ptr<RpcConnection>& client);

    RpcPhone& mPhone;
    ScreenWatch& mWatch;
    RpcRendering mRendering;
    const RpcAbout mAbout;
    const RpcAdmission mAdmission;
    const std::chrono::milliseconds mHeartbeat;
    std::mutex mMutex;
    std::set<std::shared_ptr<RpcConnection>> mClients;
    bool mHasEnded = false;
};

} // namespace simulator
