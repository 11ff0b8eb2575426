#include "simulator/web/WebFrontEnd.h"

#include "host/Phone.h"
#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "host/input/KeyLamps.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Loop.h"
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

} // namespace

/// In the order in which the parts stand on each other.
struct WebFrontEnd::Session {
    Session(host::Lcd& panel, const Endpoint& endpoint)
        : lcd(panel), broadcaster([&panel] { return panel.picture(); }, host::Loop::standsStill),
          server(endpoint, greeting(), broadcaster, keys)
    {
        lcd.setFrameListener([this] { broadcaster.frameReady(language()); });
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
        broadcaster.end();
    }

    host::Lcd& lcd;
    KeyPad keys;
    Broadcaster broadcaster;
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
    mSession = std::make_unique<Session>(*host::Lcd::current(), makeEndpoint(port, listen, token));
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
