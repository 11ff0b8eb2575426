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

/// How long pages may take to answer that it ends.
constexpr std::chrono::seconds LAST_ANSWERS(2);

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
    mg_set_websocket_handler(mContext, "/socket", connecting, connected, received, nullptr, this);
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
        const std::jthread visitor([this](const std::stop_token& stop) { hurryUntil(stop); });
        mg_stop(mContext);
    }
    mg_exit_library();
}

/// The server notices that it shall stop when somebody comes, and waits for pages; else it takes its time.
void WebServer::hurryUntil(const std::stop_token& stop)
{
    const auto deadline = std::chrono::steady_clock::now() + LAST_ANSWERS;
    while (!stop.stop_requested()) {
        if (std::chrono::steady_clock::now() >= deadline)
            cutAll();
        isServed(mEndpoint);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

void WebServer::cutAll()
{
    const std::lock_guard lock(mMutex);
    for (const auto& page : mPages)
        page->cut();
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
    auto* server = static_cast<WebServer*>(self);
    const std::lock_guard lock(server->mMutex);
    const bool isFlooded = server->mTurnedAway >= MOST_TURNED_AWAY;
    return isFlooded || !server->mAdmission.allowsSocket(callerOf(connection)) ? 1 : 0;
}

void WebServer::connected(mg_connection* connection, void* self)
{
    static_cast<WebServer*>(self)->serve(std::make_shared<PageConnection>(connection));
}

/// What has come ahead of the end of the handshake.
int WebServer::received(mg_connection*, int, char*, std::size_t, void*)
{
    return 0;
}

void WebServer::serve(const std::shared_ptr<PageConnection>& page)
{
    {
        const std::lock_guard lock(mMutex);
        mPages.insert(page);
    }
    page->sendText(mGreeting);
    if (mBroadcaster.add(page))
        serveInPlace(*page);
    else
        turnAway(*page);
    page->cutAfterThePage();
    const std::lock_guard lock(mMutex);
    mPages.erase(page);
}

void WebServer::serveInPlace(PageConnection& page)
{
    page.listen(mHeartbeat, [&](std::string_view text) { return handle(page, text); });
    mKeys.leave(&page);
    mMotion.leave(&page);
    mBroadcaster.remove(&page);
}

/// It learns why: to the page a connection that is refused looks like a telephone that is not there.
void WebServer::turnAway(PageConnection& page)
{
    const auto count = [this](int change) {
        const std::lock_guard lock(mMutex);
        mTurnedAway += change;
    };
    count(1);
    page.sendLast(fullMessage(Broadcaster::MOST_PAGES));
    page.listen(mHeartbeat, [](std::string_view) { return false; });
    count(-1);
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

} // namespace simulator
