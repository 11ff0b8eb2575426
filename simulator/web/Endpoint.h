#pragma once

#include <optional>
#include <string>

namespace simulator {

/// Where the page is served, and to whom. Without a token only to this machine.
struct Endpoint {
    std::string address = "127.0.0.1";
    int port = 8080; ///< 0 while it has not been chosen
    std::string token;

    /// "127.0.0.1:8080"
    std::string addressAndPort() const;

    /// What the user opens.
    std::string url() const;

    /// The same on the server itself: "/?token=open_sesame".
    std::string page() const;

    /// Where the test interface is.
    std::string rpcUrl() const;

    /// Where the inspector is, which asks for the test interface's token where none is given.
    std::string inspectorUrl(const std::string& rpcToken) const;

    /// "127.0.0.1:8080", as this machine reaches it.
    std::string reachable() const;
};

/// The port that leaves the choice to the system.
inline constexpr char ANY_PORT[] = "0";

/// A sentence when these make no endpoint; empty when they do.
std::string endpointError(const std::string& port, const std::optional<std::string>& listen,
                          const std::optional<std::string>& token);

/// REQUIRES: endpointError() of the same arguments is empty, but for a port 0.
Endpoint makeEndpoint(const std::string& port, const std::optional<std::string>& listen,
                      const std::optional<std::string>& token);

/// The environment variables that carry address and token to the front end.
inline constexpr char LISTEN_VARIABLE[] = "DISPLAYAPI_LISTEN";
inline constexpr char TOKEN_VARIABLE[] = "DISPLAYAPI_TOKEN";

/// The descriptor to which the front end writes the port, in a line, once it serves.
inline constexpr char PORT_REPORT_VARIABLE[] = "DISPLAYAPI_PORT_FD";

/// Those that carry the test interface's token, without which there is none, and that one may only look.
inline constexpr char RPC_TOKEN_VARIABLE[] = "DISPLAYAPI_RPC_TOKEN";
inline constexpr char RPC_READ_ONLY_VARIABLE[] = "DISPLAYAPI_RPC_READ_ONLY";

} // namespace simulator
