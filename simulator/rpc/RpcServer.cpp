#include "simulator/rpc/RpcServer.h"

#include "simulator/rpc/RpcOutbox.h"
#include "simulator/web/PeerSocket.h"
#include "simulator/web/Request.h"

#include <algorithm>
#include <civetweb.h>
#include <utility>

namespace simulator {

namespace {

using Time = std::chrono::steady_clock::time_point;

constexpr std::size_t LONGEST_MESSAGE = 65'536;
constexpr int KIND_OF_MESSAGE = 0x0F;
constexpr int LAST_PIECE = 0x80;

/// What a close frame says.
constexpr std::string_view GOING_AWAY = "\x03\xE9";
constexpr std::string_view TOO_BIG = "\x03\xF1";
constexpr std::string_view TRY_LATER = "\x03\xF5";

constexpr char ENDED[] = R"({"jsonrpc":"2.0","method":"ended"})";

/// Somebody has taken the last place meanwhile.
void turnAway(mg_connection* connection)
{
    mg_websocket_write(connection, MG_WEBSOCKET_OPCODE_CONNECTION_CLOSE, TRY_LATER.data(), TRY_LATER.size());
    PeerSocket(connection).cut();
}

} // namespace

class RpcServer::Client {
public:
    Client(mg_connection* connection, RpcServer& server)
        : mConnection(connection), mSocket(connection),
          mOutbox([this](const auto& message) { return write(message); }, [this] { mSocket.cut(); }),
          mRendering(server.mRendering),
          mMethods(server.mPhone, server.mWatch, server.mAbout,
                   [this](const auto& screen, const auto& told) { change(screen, told); })
    {
        mSocket.keepLittle();
    }

    /// False where the connection is to be closed.
    bool hear(int bits, std::string_view data);

    void tell(int kind, std::string_view data) { mOutbox.send({kind, std::string(data)}); }
    void finish() { mOutbox.finish(); }
    void waitUntilDone(Time deadline) { mOutbox.waitUntilDone(deadline); }

private:
    bool write(const RpcOutbox::Message& message) const
    {
        return mSocket.waitUntilWritable() &&
               mg_websocket_write(mConnection, message.kind, message.data.data(), message.data.size()) > 0;
    }

    bool append(int bits, std::string_view data);
    void change(const ScreenPtr& screen, const RpcMethods::Told& told);

    mg_connection* const mConnection;
    const PeerSocket mSocket;
    RpcOutbox mOutbox;
    RpcRendering& mRendering;
    RpcMethods mMethods;
    std::string mPieces;
};

bool RpcServer::Client::hear(int bits, std::string_view data)
{
    switch (bits & KIND_OF_MESSAGE) {
    case MG_WEBSOCKET_OPCODE_PONG: return true;
    case MG_WEBSOCKET_OPCODE_PING: return tell(MG_WEBSOCKET_OPCODE_PONG, data), true;
    case MG_WEBSOCKET_OPCODE_TEXT: mPieces.clear(); [[fallthrough]];
    case MG_WEBSOCKET_OPCODE_CONTINUATION: return append(bits, data);
    default: return false;
    }
}

bool RpcServer::Client::append(int bits, std::string_view data)
{
    if (mPieces.size() + data.size() > LONGEST_MESSAGE)
        return tell(MG_WEBSOCKET_OPCODE_CONNECTION_CLOSE, TOO_BIG), finish(), true;
    mPieces.append(data);
    if ((bits & LAST_PIECE) != 0)
        mMethods.dispatcher().dispatch(mPieces,
                                       [this](const std::string& answer) { tell(MG_WEBSOCKET_OPCODE_TEXT, answer); });
    return true;
}

/// Of several that it has not been told yet it hears the last, and how many there were.
void RpcServer::Client::change(const ScreenPtr& screen, const RpcMethods::Told& told)
{
    mOutbox.offer([told, number = screen->number, text = mRendering.of(screen)]() -> RpcOutbox::Message {
        const std::uint64_t missed = number - std::exchange(*told, number) - 1;
        return {MG_WEBSOCKET_OPCODE_TEXT, R"({"jsonrpc":"2.0","method":"changed","params":{"missed":)" +
                                              std::to_string(missed) + ",\"screen\":" + *text + "}}"};
    });
}

RpcServer::RpcServer(RpcPhone& phone, ScreenWatch& watch, RpcAbout about, RpcAdmission admission)
    : mPhone(phone), mWatch(watch), mAbout(std::move(about)), mAdmission(std::move(admission))
{
}

RpcServer::~RpcServer() = default;

void RpcServer::attachTo(mg_context* server)
{
    mg_set_websocket_handler(server, "/rpc", connecting, connected, received, closed, this);
}

void RpcServer::end()
{
    const std::lock_guard lock(mMutex);
    mHasEnded = true;
    for (const auto& client : mClients) {
        client->tell(MG_WEBSOCKET_OPCODE_TEXT, ENDED);
        client->tell(MG_WEBSOCKET_OPCODE_CONNECTION_CLOSE, GOING_AWAY);
        client->finish();
    }
    const Time deadline = std::chrono::steady_clock::now() + RpcOutbox::LAST_WRITES;
    for (const auto& client : mClients)
        client->waitUntilDone(deadline);
}

int RpcServer::connecting(const mg_connection* connection, void* self)
{
    auto* server = static_cast<RpcServer*>(self);
    if (!server->mAdmission.allows(callerOf(connection)))
        return 1;
    const std::lock_guard lock(server->mMutex);
    return server->mHasEnded || server->mClients.size() >= MOST_CLIENTS ? 1 : 0;
}

void RpcServer::connected(mg_connection* connection, void* self)
{
    auto* server = static_cast<RpcServer*>(self);
    const auto client = std::make_shared<Client>(connection, *server);
    mg_set_user_connection_data(connection, server->add(client) ? client.get() : nullptr);
    if (mg_get_user_connection_data(connection) == nullptr)
        turnAway(connection);
}

int RpcServer::received(mg_connection* connection, int bits, char* data, std::size_t size, void*)
{
    auto* client = static_cast<Client*>(mg_get_user_connection_data(connection));
    return client != nullptr && client->hear(bits, {data, size}) ? 1 : 0;
}

void RpcServer::closed(const mg_connection* connection, void* self)
{
    if (auto* client = static_cast<Client*>(mg_get_user_connection_data(connection)))
        static_cast<RpcServer*>(self)->remove(client);
}

bool RpcServer::add(const std::shared_ptr<Client>& client)
{
    const std::lock_guard lock(mMutex);
    return !mHasEnded && mClients.size() < MOST_CLIENTS && mClients.insert(client).second;
}

/// Waits until nothing more is written to it, and lets nobody else wait for that.
void RpcServer::remove(const Client* client)
{
    std::unique_lock lock(mMutex);
    const auto found = std::ranges::find(mClients, client, [](const auto& each) { return each.get(); });
    const std::shared_ptr<Client> gone = *found;
    mClients.erase(found);
    lock.unlock();
}

} // namespace simulator
