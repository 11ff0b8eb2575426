#pragma once

#include <utility>

namespace test {

/// Gives a global variable another value for as long as it lives.
template <typename T>
class Replaced {
public:
    Replaced(T& variable, T value) : mVariable(variable), mKept(std::exchange(variable, std::move(value))) {}
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;
    ~Replaced() { mVariable = std::move(mKept); }

private:
    T& mVariable;
    T mKept;
};

} // namespace test
