#pragma once

#include <string>
#include <vector>

namespace audit {

/// The lines of a file. Throws where it cannot be read: a file that is missing is no empty one.
std::vector<std::string> readLines(const std::string& fileName);

} // namespace audit
