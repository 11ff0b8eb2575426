#pragma once

#include <string>
#include <string_view>

namespace simulator {

/// Lines that begin with `volatile:` say what changes by itself.
enum class VolatileLines { MAY_DIFFER, COUNT };

/// Compares line by line. A carriage return at a line's end does not count, nor does, where such lines may differ, what
/// stands behind `volatile:`.
/// Empty where nothing differs, else from the first line that differs to the last, `- ` before expected lines, `+ `
/// before actual ones, two spaces before both.
std::string textDifference(std::string_view expected, std::string_view actual,
                           VolatileLines volatileLines = VolatileLines::MAY_DIFFER);

/// Whether nothing differs.
bool areAlike(std::string_view expected, std::string_view actual, VolatileLines volatileLines);

} // namespace simulator
