#pragma once

#include <string>

namespace host {

/// The path of what lies beside the host's shared object, wherever that has been moved to. Any thread.
std::string besideTheHost(const std::string& file);

/// A function of a shared object, or why there is none.
struct LoadedFunction {
    void* function = nullptr;
    std::string error{};
};

/// Loads a shared object that lies beside the host's and stays loaded: its threads may outlive who uses it. Any thread.
LoadedFunction loadBesideTheHost(const std::string& file, const char* function);

} // namespace host
