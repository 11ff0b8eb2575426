#pragma once

namespace test {

/// Where a call stands, for the default argument of what is called. In place of std::source_location, which clang 14
/// does not have with this standard library.
struct SourceLine {
    static constexpr SourceLine current(const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        return {file, line};
    }

    const char* file;
    int line;
};

} // namespace test
