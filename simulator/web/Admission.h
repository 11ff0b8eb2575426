#pragma once

#include "simulator/web/Endpoint.h"

#include <string_view>

namespace simulator {

/// What a request says about where it comes from; empty where it says nothing.
struct Caller {
    std::string_view host;   ///< the header Host
    std::string_view origin; ///< the header Origin
    std::string_view query;  ///< what stands behind the ? of the address
};

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
