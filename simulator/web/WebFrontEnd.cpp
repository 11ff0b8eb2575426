#include "simulator/web/WebFrontEnd.h"

#include "DisplayAPI/Display.h"
#include "host/Phone.h"
#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "host/input/KeyLamps.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Loop.h"
#include "simulator/rpc/RpcServer.h"
#include "simulator/web/QuitOnSignal.h"
#include "simulator/web/ServerMessages.h"
#include "simulator/web/WebServer.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <cerrno>
#include <cstdlib>

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

/// GUI thread only.
std::string language()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    return application != nullptr ? languageTag(ICC::fromUNICODEtoUTF8(application->getLocale())) : std::string();
}

/// GUI thread only.
ScreenWords screenWords()
{
    DisplayAPI::Display* const display = DisplayAPI::Display::latest();
    return {display != nullptr ? display->serialise() : std::string(), language()};
}

/// What a test interface needs, where there is one.
struct TestInterface {
    TestInterface(host::Lcd& lcd, KeyPad& keys, const Endpoint& endpoint, std::string token)
        : reader(lcd, screenWords), watch(reader), phone(reader, clock, keys),
          server(phone, watch, {program_invocation_short_name, fromEnvironment(RPC_READ_ONLY_VARIABLE).has_value()},
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
    Session(host::Lcd& panel, const Endpoint& endpoint, std::optional<std::string> rpcToken)
        : lcd(panel), broadcaster([&panel] { return panel.picture(); }, host::Loop::standsStill),
          rpc(rpcToken ? std::make_unique<TestInterface>(panel, keys, endpoint, *std::move(rpcToken)) : nullptr),
          server(endpoint, greeting(), broadcaster, keys, Heartbeat::PAUSE, rpc != nullptr ? &rpc->server : nullptr)
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

    void frameReady()
    {
        broadcaster.frameReady(language());
        if (rpc != nullptr)
            rpc->reader.frameReady();
    }

    host::Lcd& lcd;
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
    if (const std::string error = endpointError(port, listen, token); !error.empty())
        return error;
    mSession = std::make_unique<Session>(*host::Lcd::current(), makeEndpoint(port, listen, token),
                                         fromEnvironment(RPC_TOKEN_VARIABLE));
    const std::string error = mSession->server.error();
    if (!error.empty())
        mSession.reset();
    return error;
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
