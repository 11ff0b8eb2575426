#pragma once

#include <vector>

namespace test {

/// The seeds that random tests run with: 1 to 3, or what the environment's DISPLAYAPI_SEEDS asks for: "20" is 1 to 20,
/// "7..9" is 7 to 9.
std::vector<unsigned int> seeds();

} // namespace test
