#pragma once

#include "simulator/core/KeyPad.h"
#include "simulator/web/Admission.h"
#include "simulator/web/Broadcaster.h"
#include "simulator/web/Endpoint.h"
#include "simulator/web/MotionWishes.h"

#include <memory>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>

struct mg_connection;
struct mg_context;

namespace simulator {

class RpcServer;

/// Serves the page and its socket. The broadcaster and the key pad have to outlive it.
///
/// Lock: one guards who is connected, a leaf.
class WebServer {
public:
    /// A page that says nothing whole for some of these is gone.
    static constexpr std::chrono::milliseconds HEARTBEAT{5'000};

    /// `greeting` is what each page is told first; `heartbeat` lies between two pings; `rpc`, where there is one, is
    /// served beside the page and has to outlive the server as well.
    WebServer(const Endpoint& endpoint, std::string greeting, Broadcaster& broadcaster, KeyPad& keys,
              std::chrono::milliseconds heartbeat = HEARTBEAT, RpcServer* rpc = nullptr);
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    /// Closes all connections. Takes two seconds where a page does not answer.
    ~WebServer();

    /// Why it does not serve; empty when it does.
    const std::string& error() const { return mError; }

    /// On which it serves: the endpoint's, or the one that the system has chosen.
    int port() const { return mEndpoint.port; }

private:
    static int servePage(mg_connection* connection, void* self);
    static int serveInspector(mg_connection* connection, void* self);
    static int connecting(const mg_connection* connection, void* self);
    static void connected(mg_connection* connection, void* self);
    static int received(mg_connection* connection, int bits, char* data, std::size_t size, void* self);

    void findPort();
    void serve(const std::shared_ptr<PageConnection>& page);
    void serveInPlace(PageConnection& page);
    void turnAway(PageConnection& page);
    void hurryUntil(const std::stop_token& stop);
    void cutAll();
    bool handle(PageConnection& page, std::string_view text);

    Endpoint mEndpoint;
    Admission mAdmission;
    std::string mGreeting;
    Broadcaster& mBroadcaster;
    KeyPad& mKeys;
    const std::chrono::milliseconds mHeartbeat;
    MotionWishes mMotion;
    const RpcServer* mRpc;
    std::mutex mMutex; ///< guards the next two
    std::set<std::shared_ptr<PageConnection>> mPages;
    int mTurnedAway = 0; ///< those of them that hear that there is no room, and have not closed yet
    mg_context* mContext = nullptr;
    std::string mError;
};

} // namespace simulator
