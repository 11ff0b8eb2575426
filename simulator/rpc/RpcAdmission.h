#pragma once

#include "simulator/web/Admission.h"

#include <string>

namespace simulator {

/// Who may use the test interface: whoever knows its token. Like the page it is for this machine under one of its
/// names unless the page is open to others; a browser may use it for a page from here.
class RpcAdmission {
public:
    RpcAdmission(const Endpoint& endpoint, std::string token)
        : mIsForOthers(!endpoint.token.empty()), mToken(std::move(token))
    {
    }

    bool allows(const Caller& caller) const;

    /// Whether he may have the document of the inspector, which holds no secret: it asks for the token where the
    /// address has none.
    bool allowsPage(const Caller& caller) const;

private:
    bool isNamedRight(const Caller& caller) const;

    bool mIsForOthers;
    std::string mToken;
};

} // namespace simulator
