#pragma once

#include "simulator/rpc/RpcAdmission.h"
#include "simulator/rpc/RpcMethods.h"
#include "simulator/rpc/RpcScreen.h"

#include <memory>
#include <mutex>
#include <set>

struct mg_connection;
struct mg_context;

namespace simulator {

/// The test interface's socket, on a server of somebody else's. Has to outlive that one.
class RpcServer {
public:
    static constexpr int MOST_CLIENTS = 32;

    /// Phone and watch have to outlive it.
    RpcServer(RpcPhone& phone, ScreenWatch& watch, RpcAbout about, RpcAdmission admission);
    RpcServer(const RpcServer&) = delete;
    RpcServer& operator=(const RpcServer&) = delete;
    ~RpcServer();

    void attachTo(mg_context* server);

    /// Tells all clients that the application has ended, and takes no further ones. Waits until they have been told, as
    /// the server writes nothing once it stops; a second at most for who does not read. May be called again.
    void end();

private:
    class Client;

    static int connecting(const mg_connection* connection, void* self);
    static void connected(mg_connection* connection, void* self);
    static int received(mg_connection* connection, int bits, char* data, std::size_t size, void* self);
    static void closed(const mg_connection* connection, void* self);

    bool add(const std::shared_ptr<Client>& client);
    void remove(const Client* client);

    RpcPhone& mPhone;
    ScreenWatch& mWatch;
    RpcRendering mRendering;
    const RpcAbout mAbout;
    const RpcAdmission mAdmission;
    std::mutex mMutex;
    std::set<std::shared_ptr<Client>> mClients;
    bool mHasEnded = false;
};

} // namespace simulator
