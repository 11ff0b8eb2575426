#pragma once

#include "simulator/web/Endpoint.h"

#include <string_view>

namespace simulator {

/// What a request says about where it comes from; empty where it says nothing.
struct Caller {
    std::string_view host;               ///< the header Host
    std::string_view origin;             ///< the header Origin
    std::string_view query;              ///< what stands behind the ? of the address
    std::string_view authorization = {}; ///< the header Authorization
};

/// Whether the name of a header Host is one of this machine's.
bool isThisMachine(std::string_view host);

/// Whether the page that asks has come from the address that it asks.
bool isFromHere(const Caller& caller);

/// Behind `token=` at the beginning of a query; empty where there is none.
std::string_view tokenIn(std::string_view query);

/// Takes as long for a wrong one as for the right one, wherever they differ.
bool isSameSecret(std::string_view secret, std::string_view given);

/// Who may see the panel and press the keys.
///
/// Without a token the page must have been asked for by a name of this machine: a page from elsewhere whose name was
/// made to point here carries its own name. A socket is for a page that came from here.
class Admission {
public:
    explicit Admission(const Endpoint& endpoint) : mToken(endpoint.token) {}

    bool allowsPage(const Caller& caller) const;
    bool allowsSocket(const Caller& caller) const;

private:
    std::string mToken;
};

} // namespace simulator
