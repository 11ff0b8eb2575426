#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// What libFuzzer calls, and replay.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace test {

/// Ends the process where that does not hold: to a fuzzer this is a finding.
inline void check(bool holds, const std::string& sentence)
{
    if (holds)
        return;
    std::fprintf(stderr, "finding: %s\n", sentence.c_str());
    std::fflush(stderr);
    std::abort();
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Takes an input apart, byte by byte; behind its end everything is 0.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : mBytes(bytes) {}

    bool isEmpty() const { return mBytes.empty(); }

    unsigned int next()
    {
        if (mBytes.empty())
            return 0;
        const auto byte = static_cast<unsigned char>(mBytes.front());
        mBytes.remove_prefix(1);
        return byte;
    }

    unsigned int below(unsigned int limit) { return next() % limit; }

    /// As long as its first byte says.
    std::string text()
    {
        const std::size_t size = std::min<std::size_t>(next(), mBytes.size());
        const std::string text(mBytes.substr(0, size));
        mBytes.remove_prefix(size);
        return text;
    }

private:
    std::string_view mBytes;
};

} // namespace test
