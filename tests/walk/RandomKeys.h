#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace test {

/// What somebody does with a telephone who does not know what he wants, as lines of a script: presses and holds any of
/// its keys, types, and waits, now and then for so long that what runs out has run out. Now and then somebody calls.
class RandomKeys {
public:
    explicit RandomKeys(unsigned int seed) : mRandom(seed) {}

    std::string next();

private:
    std::size_t below(std::size_t limit);
    std::string number();
    std::string caller();

    std::mt19937 mRandom;
};

} // namespace test
