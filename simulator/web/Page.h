#pragma once

#include <string_view>

namespace simulator {

/// The page: one document with everything in it. Made from the files in page/.
std::string_view page();

} // namespace simulator
