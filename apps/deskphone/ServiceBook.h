#pragma once

#include <array>
#include <string>
#include <vector>

namespace deskphone {

/// Something to read, somebody to call, or somebody who calls.
struct Service {
    std::string title;              ///< its key
    std::vector<std::string> lines; ///< their keys
    std::string number;             ///< empty where there is nobody to call
    bool callsBack = false;
};

extern const std::array<Service, 5> SERVICES;

} // namespace deskphone
