#include "simulator/rpc/RpcServer.h"

#include "simulator/rpc/RpcConnection.h"
#include "simulator/web/Request.h"

#include <algorithm>
#include <civetweb.h>
#include <utility>

namespace simulator {

RpcServer::RpcServer(RpcPhone& phone, ScreenWatch& watch, RpcAbout about, RpcAdmission admission,
                     std::chrono::milliseconds heartbeat)
    : mPhone(phone), mWatch(watch), mAbout(std::move(about)), mAdmission(std::move(admission)), mHeartbeat(heartbeat)
{
}

RpcServer::~RpcServer() = default;

void RpcServer::attachTo(mg_context* server)
{
    mg_set_websocket_handler(server, "/rpc", connecting, connected, received, nullptr, this);
}

void RpcServer::end()
{
    const std::lock_guard lock(mMutex);
    mHasEnded = true;
    for (const auto& client : mClients)
        client->tellEnd();
    const auto deadline = std::chrono::steady_clock::now() + RpcOutbox::LAST_WRITES;
    for (const auto& client : mClients)
        client->endBy(deadline);
}

int RpcServer::connecting(const mg_connection* connection, void* self)
{
    auto* server = static_cast<RpcServer*>(self);
    if (!server->mAdmission.allows(callerOf(connection)))
        return 1;
    const std::lock_guard lock(server->mMutex);
    return server->mHasEnded || server->mClients.size() >= MOST_CLIENTS ? 1 : 0;
}

/// The server library gets nothing to read: it would read a message of any length whole.
void RpcServer::connected(mg_connection* connection, void* self)
{
    auto* server = static_cast<RpcServer*>(self);
    const auto client = std::make_shared<RpcConnection>(connection, server->mPhone, server->mWatch, server->mAbout,
                                                        server->mRendering, server->mHeartbeat);
    if (!server->add(client))
        client->turnAway();
    client->run();
    server->remove(client);
}

/// What has come ahead of the end of the handshake.
int RpcServer::received(mg_connection*, int, char*, std::size_t, void*)
{
    return 0;
}

bool RpcServer::add(const std::shared_ptr<RpcConnection>& client)
{
    const std::lock_guard lock(mMutex);
    return !mHasEnded && mClients.size() < MOST_CLIENTS && mClients.insert(client).second;
}

void RpcServer::remove(const std::shared_ptr<RpcConnection>& client)
{
    const std::lock_guard lock(mMutex);
    mClients.erase(client);
}

} // namespace simulator
