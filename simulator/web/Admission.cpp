#include "simulator/web/Admission.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace simulator {

namespace {

/// Names of machines are the same in capitals.
std::string lowered(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return c < 0x80 ? std::tolower(c) : c; });
    return lower;
}

std::string_view withoutPort(std::string_view host)
{
    const auto colon = host.rfind(':');
    const bool hasPort = colon != std::string_view::npos && host.find(']', colon) == std::string_view::npos;
    return hasPort ? host.substr(0, colon) : host;
}

} // namespace

bool isThisMachine(std::string_view host)
{
    static constexpr std::array<std::string_view, 3> NAMES = {"127.0.0.1", "localhost", "[::1]"};
    return std::ranges::find(NAMES, lowered(withoutPort(host))) != NAMES.end();
}

std::string_view tokenIn(std::string_view query)
{
    constexpr std::string_view NAME = "token=";
    if (!query.starts_with(NAME))
        return {};
    query.remove_prefix(NAME.size());
    return query.substr(0, query.find('&'));
}

bool isSameSecret(std::string_view secret, std::string_view given)
{
    unsigned char difference = secret.size() == given.size() ? 0 : 1;
    for (std::size_t i = 0; i < secret.size(); ++i)
        difference |= static_cast<unsigned char>(secret[i] ^ (i < given.size() ? given[i] : 0));
    return difference == 0;
}

bool isFromHere(const Caller& caller)
{
    return lowered(caller.origin) == "http://" + lowered(caller.host);
}

bool Admission::allowsPage(const Caller& caller) const
{
    return mToken.empty() ? isThisMachine(caller.host) : isSameSecret(mToken, tokenIn(caller.query));
}

bool Admission::allowsSocket(const Caller& caller) const
{
    return allowsPage(caller) && isFromHere(caller);
}

} // namespace simulator
