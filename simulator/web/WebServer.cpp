#include "simulator/web/WebServer.h"

#include "host/frontend/Wire.h"
#include "simulator/rpc/RpcServer.h"
#include "simulator/web/Page.h"
#include "simulator/web/PageMessage.h"
#include "simulator/web/PortCheck.h"
#include "simulator/web/Request.h"
#include "simulator/web/ServerMessages.h"

#include <civetweb.h>
#include <thread>

namespace simulator {

namespace {

constexpr int MOST_TURNED_AWAY = 4;
constexpr std::size_t LONGEST_MESSAGE = 1024;
constexpr std::size_t LONGEST_PING = 125;
constexpr int KIND_OF_MESSAGE = 0x0F;
constexpr int LAST_PIECE = 0x80;

constexpr char PAGE_HEADERS[] =
    "HTTP/1.1 200 OK\r\n"
    "Content-Type: text/html; charset=utf-8\r\n"
    "Content-Security-Policy: default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'; "
    "img-src data:; connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'\r\n"
    "Cache-Control: no-store\r\n"
    "Referrer-Policy: no-referrer\r\n"
    "X-Content-Type-Options: nosniff\r\n"
    "Connection: close\r\n";

/// A page is served by a thread of its own while it is open; some more turn pages away, and serve the document itself.
constexpr int THREADS = 24;

std::vector<const char*> optionsFor(const std::string& addressAndPort, const std::string& threads)
{
    return {"listening_ports",
            addressAndPort.c_str(),
            "num_threads",
            threads.c_str(),
            "request_timeout_ms",
            "2000",
            "websocket_timeout_ms",
            "5000",
            "access_control_allow_origin",
            "",
            "tcp_nodelay",
            "1",
            nullptr};
}

/// What the server has to say of single connections is of no interest to the application's user.
int ignoreLog(const mg_connection*, const char*)
{
    return 1;
}

int refuse(mg_connection* connection, int status, const char* sentence)
{
    mg_send_http_error(connection, status, "%s", sentence);
    return status;
}

int send(mg_connection* connection, std::string_view document)
{
    mg_printf(connection, "%sContent-Length: %zu\r\n\r\n", PAGE_HEADERS, document.size());
    mg_write(connection, document.data(), document.size());
    return 200;
}

/// The server notices that it shall stop when somebody comes; else it takes its time.
void visitUntil(const std::stop_token& stop, const Endpoint& endpoint)
{
    while (!stop.stop_requested()) {
        isServed(endpoint);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

} // namespace

WebServer::WebServer(const Endpoint& endpoint, std::string greeting, Broadcaster& broadcaster, KeyPad& keys,
                     std::chrono::milliseconds heartbeat, RpcServer* rpc)
    : mEndpoint(endpoint), mAdmission(endpoint), mGreeting(std::move(greeting)), mBroadcaster(broadcaster), mKeys(keys),
      mHeartbeat(heartbeat), mRpc(rpc)
{
    const std::string addressAndPort = endpoint.addressAndPort();
    const std::string threads = std::to_string(THREADS + (rpc != nullptr ? RpcServer::MOST_CLIENTS : 0));
    const auto options = optionsFor(addressAndPort, threads);
    mg_callbacks callbacks{};
    callbacks.log_message = ignoreLog;
    mg_init_data start{&callbacks, this, const_cast<const char**>(options.data())};
    char reason[200] = "";
    mg_error_data error{nullptr, reason, sizeof reason};
    mg_init_library(0);
    mContext = mg_start2(&start, &error);
    if (mContext == nullptr) {
        mError = "Cannot serve the page on " + addressAndPort + ": " + reason + ".";
        return;
    }
    findPort();
    mg_set_request_handler(mContext, "/", servePage, this);
    mg_set_request_handler(mContext, "/inspect", serveInspector, this);
    mg_set_websocket_handler(mContext, "/socket", connecting, connected, received, closed, this);
    if (rpc != nullptr)
        rpc->attachTo(mContext);
}

void WebServer::findPort()
{
    mg_server_port ports[1];
    if (mg_get_server_ports(mContext, 1, ports) == 1)
        mEndpoint.port = ports[0].port;
}

WebServer::~WebServer()
{
    if (mContext != nullptr) {
        const std::jthread visitor([this](std::stop_token stop) { visitUntil(stop, mEndpoint); });
        mg_stop(mContext);
    }
    mg_exit_library();
}

int WebServer::servePage(mg_connection* connection, void* self)
{
    const mg_request_info* request = mg_get_request_info(connection);
    if (orEmpty(request->local_uri) != "/")
        return refuse(connection, 404, "There is only the page.");
    if (orEmpty(request->request_method) != "GET")
        return refuse(connection, 405, "The page can only be read.");
    if (!static_cast<WebServer*>(self)->mAdmission.allowsPage(callerOf(connection)))
        return refuse(connection, 403, "This telephone is not for you: open the address it printed.");
    return send(connection, page());
}

int WebServer::serveInspector(mg_connection* connection, void* self)
{
    const mg_request_info* request = mg_get_request_info(connection);
    if (orEmpty(request->local_uri) != "/inspect")
        return refuse(connection, 404, "There is only the inspector.");
    const RpcServer* rpc = static_cast<WebServer*>(self)->mRpc;
    if (rpc == nullptr)
        return refuse(connection, 404, "There is no inspector without the test interface: start it with phone --rpc.");
    if (orEmpty(request->request_method) != "GET")
        return refuse(connection, 405, "The inspector can only be read.");
    if (!rpc->admission().allowsPage(callerOf(connection)))
        return refuse(connection, 403, "The inspector is not for you: open the address that phone printed.");
    return send(connection, inspectorPage());
}

int WebServer::connecting(const mg_connection* connection, void* self)
{
    const auto* server = static_cast<const WebServer*>(self);
    const bool isFlooded = server->mTurnedAway >= MOST_TURNED_AWAY;
    return isFlooded || !server->mAdmission.allowsSocket(callerOf(connection)) ? 1 : 0;
}

void WebServer::connected(mg_connection* connection, void* self)
{
    auto* server = static_cast<WebServer*>(self);
    auto page = std::make_shared<PageConnection>(connection);
    page->sendText(server->mGreeting);
    mg_set_user_connection_data(connection, page.get());
    server->mHeartbeat.add(connection);
    if (server->mBroadcaster.add(page))
        return;
    mg_set_user_connection_data(connection, nullptr);
    server->turnAway(*page);
}

/// It learns why: to the page a connection that is refused looks like a telephone that is not there.
void WebServer::turnAway(PageConnection& page)
{
    ++mTurnedAway;
    page.sendLast(fullMessage(Broadcaster::MOST_PAGES));
}

int WebServer::received(mg_connection* connection, int bits, char* data, std::size_t size, void* self)
{
    const int kind = bits & KIND_OF_MESSAGE;
    static_cast<WebServer*>(self)->mHeartbeat.heard(connection);
    if (kind == MG_WEBSOCKET_OPCODE_PONG)
        return 1;
    if (kind == MG_WEBSOCKET_OPCODE_PING)
        return size <= LONGEST_PING && mg_websocket_write(connection, MG_WEBSOCKET_OPCODE_PONG, data, size) > 0 ? 1 : 0;
    auto* page = static_cast<PageConnection*>(mg_get_user_connection_data(connection));
    const bool isWhole = kind == MG_WEBSOCKET_OPCODE_TEXT && (bits & LAST_PIECE) != 0;
    const bool isGood = page != nullptr && !page->isBroken() && isWhole && size <= LONGEST_MESSAGE;
    return isGood && static_cast<WebServer*>(self)->handle(*page, {data, size}) ? 1 : 0;
}

bool WebServer::handle(PageConnection& page, std::string_view text)
{
    const auto message = parsePageMessage(text);
    if (!message)
        return false;
    switch (message->kind) {
    case PageMessage::Kind::DOWN: mKeys.down(&page, message->key); break;
    case PageMessage::Kind::UP: mKeys.up(&page, message->key); break;
    case PageMessage::Kind::EXCHANGE: page.sendText(answerMessage(host::Wire::say("exchange", message->line))); break;
    case PageMessage::Kind::MOTION: mMotion.wish(&page, message->wantsLessMotion); break;
    case PageMessage::Kind::SEEN:
        page.seen(message->frame);
        mBroadcaster.pageChanged();
        break;
    }
    return true;
}

void WebServer::closed(const mg_connection* connection, void* self)
{
    auto* server = static_cast<WebServer*>(self);
    auto* page = static_cast<PageConnection*>(mg_get_user_connection_data(connection));
    server->mHeartbeat.remove(connection);
    if (page == nullptr) {
        --server->mTurnedAway;
        return;
    }
    page->detach();
    server->mKeys.leave(page);
    server->mMotion.leave(page);
    server->mBroadcaster.remove(page);
}

} // namespace simulator
