#pragma once

#include <string_view>

namespace simulator {

/// The page: one document with everything in it. Made from the files in page/.
std::string_view page();

/// The inspector, which shows what the test interface tells of the program. Made as the page is, of the files in
/// inspector/.
std::string_view inspectorPage();

} // namespace simulator
