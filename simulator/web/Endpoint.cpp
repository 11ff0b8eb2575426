#include "simulator/web/Endpoint.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>
#include <string_view>

namespace simulator {

namespace {

constexpr std::size_t SHORTEST_TOKEN = 8;
constexpr std::size_t LONGEST_TOKEN = 128;

/// 0 where the text is no port.
int toPort(std::string_view text)
{
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isPort = error == std::errc() && end == text.data() + text.size() && port >= 1 && port <= 65535;
    return isPort ? port : 0;
}

bool isAddress(int family, const std::string& text)
{
    in6_addr parsed;
    return inet_pton(family, text.c_str(), &parsed) == 1;
}

/// Characters that need no escape in an address of the web.
bool isToken(const std::string& text)
{
    const auto isPlain = [](unsigned char c) { return (std::isalnum(c) != 0 && c < 0x80) || c == '-' || c == '_'; };
    return text.size() >= SHORTEST_TOKEN && text.size() <= LONGEST_TOKEN && std::ranges::all_of(text, isPlain);
}

} // namespace

std::string Endpoint::addressAndPort() const
{
    return address + ":" + std::to_string(port);
}

std::string Endpoint::url() const
{
    return "http://" + reachable() + page();
}

std::string Endpoint::page() const
{
    return token.empty() ? "/" : "/?token=" + token;
}

std::string Endpoint::rpcUrl() const
{
    return "ws://" + reachable() + "/rpc";
}

std::string Endpoint::inspectorUrl(const std::string& rpcToken) const
{
    return "http://" + reachable() + "/inspect" + (rpcToken.empty() ? "" : "?token=" + rpcToken);
}

std::string Endpoint::reachable() const
{
    return Endpoint{address == "0.0.0.0" ? "127.0.0.1" : address, port, {}}.addressAndPort();
}

std::string endpointError(const std::string& port, const std::optional<std::string>& listen,
                          const std::optional<std::string>& token)
{
    if (toPort(port) == 0)
        return "The port must be a number from 1 to 65535, not '" + port + "'.";
    if (listen.has_value() != token.has_value())
        return "--listen ADDRESS and --token TOKEN go together: who else may press the keys needs to know a secret.";
    if (listen && isAddress(AF_INET6, *listen))
        return "'" + *listen + "' is an IPv6 address; the page's server knows IPv4 only, such as 0.0.0.0.";
    if (listen && !isAddress(AF_INET, *listen))
        return "'" + *listen + "' is no IP address to listen on.";
    if (token && !isToken(*token))
        return "The token must have 8 to 128 letters, digits, - or _.";
    return {};
}

Endpoint makeEndpoint(const std::string& port, const std::optional<std::string>& listen,
                      const std::optional<std::string>& token)
{
    Endpoint endpoint;
    endpoint.port = toPort(port);
    endpoint.address = listen.value_or(endpoint.address);
    endpoint.token = token.value_or("");
    return endpoint;
}

} // namespace simulator
