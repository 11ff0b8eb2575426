#pragma once

#include <array>
#include <string>
#include <vector>

namespace deskphone {

/// Something to read, or somebody to call.
struct Service {
    std::string title;              ///< its key
    std::vector<std::string> lines; ///< their keys
    std::string number;             ///< empty where there is nobody to call
};

extern const std::array<Service, 5> SERVICES;

} // namespace deskphone
