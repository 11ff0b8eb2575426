#include "simulator/web/WebFrontEnd.h"

#include "host/Phone.h"
#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "host/input/KeyLamps.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Loop.h"
#include "simulator/core/DisplayedWords.h"
#include "simulator/record/Recorder.h"
#include "simulator/rpc/RpcServer.h"
#include "simulator/web/QuitOnSignal.h"
#include "simulator/web/ServerMessages.h"
#include "simulator/web/WebServer.h"

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator {

namespace {

std::optional<std::string> fromEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0')
        return {};
    return value;
}

std::string greeting()
{
    return applicationMessage(program_invocation_short_name, host::nameOf(host::variant()));
}

std::optional<std::vector<host::Wire::Offer>> exchangeOffers()
{
    if (!host::Wire::isThere("exchange"))
        return {};
    return host::Wire::offers("exchange");
}

/// What a program has inherited may be another one's, and long closed.
bool isPipe(int descriptor)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISFIFO(status.st_mode);
}

/// To the launcher, or to the user where there is none.
void report(const Endpoint& endpoint)
{
    const int pipe = std::atoi(fromEnvironment(PORT_REPORT_VARIABLE).value_or("-1").c_str());
    if (!isPipe(pipe)) {
        std::cerr << "The telephone is at " << endpoint.url() << std::endl;
        return;
    }
    const std::string line = std::to_string(endpoint.port) + '\n';
    while (write(pipe, line.data(), line.size()) < 0 && errno == EINTR) {
    }
    close(pipe);
}

/// What a test interface needs, where there is one.
struct TestInterface {
    TestInterface(host::Lcd& lcd, KeyPad& keys, const Endpoint& endpoint, std::string token)
        : reader(lcd, displayedWords), watch(reader), phone(reader, clock, keys),
          server(phone, watch,
                 {program_invocation_short_name, fromEnvironment(RPC_READ_ONLY_VARIABLE).has_value(), endpoint.page()},
                 {endpoint, std::move(token)})
    {
    }

    /// Nobody waits for the telephone any more.
    void leave()
    {
        reader.leave();
        watch.end();
        clock.leave();
        server.end();
    }

    ScreenReader reader;
    ScreenWatch watch;
    PhoneClock clock;
    RpcPhone phone;
    RpcServer server;
};

} // namespace

/// In the order in which the parts stand on each other.
struct WebFrontEnd::Session {
    Session(host::Lcd& panel, const Endpoint& endpoint, std::optional<std::string> rpcToken,
            const std::optional<std::string>& record)
        : lcd(panel),
          recorder(record ? std::make_unique<Recorder>(panel, *record, program_invocation_short_name) : nullptr),
          broadcaster([&panel] { return panel.picture(); }, host::Loop::standsStill),
          rpc(rpcToken ? std::make_unique<TestInterface>(panel, keys, endpoint, *std::move(rpcToken)) : nullptr),
          server(endpoint, greeting(), broadcaster, keys, WebServer::HEARTBEAT, rpc != nullptr ? &rpc->server : nullptr)
    {
        lcd.setFrameListener([this] { frameReady(); });
        host::KeyLamps::setListener([this] { broadcaster.lampsChanged(host::KeyLamps::current()); });
        host::CallSigns::setListener([this] { broadcaster.signsChanged(host::CallSigns::current()); });
        host::Wire::setListener([this] { broadcaster.exchangeChanged(exchangeOffers()); });
    }

    ~Session()
    {
        lcd.setFrameListener({});
        host::KeyLamps::setListener({});
        host::CallSigns::setListener({});
        host::Wire::setListener({});
        if (rpc != nullptr)
            rpc->leave();
        broadcaster.end();
    }

    /// Why there is none; empty where there is.
    std::string error() const
    {
        return recorder != nullptr && !recorder->error().empty() ? recorder->error() : server.error();
    }

    void frameReady()
    {
        broadcaster.frameReady(displayedLanguage());
        if (rpc != nullptr)
            rpc->reader.frameReady();
        if (recorder != nullptr)
            recorder->frameReady();
    }

    host::Lcd& lcd;
    std::unique_ptr<Recorder> recorder;
    KeyPad keys;
    Broadcaster broadcaster;
    std::unique_ptr<TestInterface> rpc;
    QuitOnSignal quitOnSignal; ///< before the server: who sees it may send a signal
    WebServer server;
};

WebFrontEnd::WebFrontEnd() = default;
WebFrontEnd::~WebFrontEnd() = default;

std::string WebFrontEnd::start(const std::string& port)
{
    const auto listen = fromEnvironment(LISTEN_VARIABLE);
    const auto token = fromEnvironment(TOKEN_VARIABLE);
    if (const std::string error = endpointError(port, listen, token); port != ANY_PORT && !error.empty())
        return error;
    Endpoint endpoint = makeEndpoint(port, listen, token);
    mSession = std::make_unique<Session>(*host::Lcd::current(), endpoint, fromEnvironment(RPC_TOKEN_VARIABLE),
                                         fromEnvironment(RECORD_VARIABLE));
    const std::string error = mSession->error();
    if (!error.empty()) {
        mSession.reset();
        return error;
    }
    endpoint.port = mSession->server.port();
    report(endpoint);
    return {};
}

void WebFrontEnd::stop()
{
    mSession.reset();
}

} // namespace simulator

extern "C" __attribute__((visibility("default"))) host::FrontEnd* displayapiCreateFrontEnd()
{
    return new simulator::WebFrontEnd;
}
