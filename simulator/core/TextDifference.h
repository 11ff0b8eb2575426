#pragma once

#include <string>
#include <string_view>

namespace simulator {

/// Compares line by line; what stands behind `volatile:` does not count, nor does a carriage return at a line's end.
/// Empty where nothing differs, else from the first line that differs to the last, `- ` before expected lines, `+ `
/// before actual ones, two spaces before both.
std::string textDifference(std::string_view expected, std::string_view actual);

} // namespace simulator
