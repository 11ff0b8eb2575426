#pragma once

#include "simulator/web/Endpoint.h"

#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// What the user asks the launcher for.
struct Options {
    std::string variant = "plain";
    std::string port = "8080"; ///< ANY_PORT: one that is free
    std::optional<std::string> listen;
    std::optional<std::string> token;
    std::optional<std::string> script;
    std::string out = ".";
    bool virtualClock = false;
    bool rpc = false;                    ///< whether there is a test interface
    std::optional<std::string> rpcToken; ///< the file for its token
    bool rpcReadOnly = false;
    std::optional<std::string> record;    ///< the file for what the user does
    std::vector<std::string> application; ///< its name and its arguments

    bool wantsHelp = false;
    std::string error; ///< a sentence for the user; empty when all is well
};

/// Everything up to the first word that is no option is the launcher's; the rest is the application's.
Options parseOptions(const std::vector<std::string>& arguments);

/// How to call the launcher.
extern const char* const USAGE;

} // namespace simulator
