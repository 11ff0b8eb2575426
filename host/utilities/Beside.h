#pragma once

#include <string>

namespace host {

/// The path of what lies beside the host's shared object, wherever that has been moved to. Any thread.
std::string besideTheHost(const std::string& file);

} // namespace host
