#pragma once

#include "host/utilities/Log.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <ostream>
#include <string>
#include <vector>

namespace host {

inline bool operator==(const LogLine& a, const LogLine& b)
{
    return a.module == b.module && a.file == b.file && a.level == b.level && a.line == b.line && a.text == b.text;
}

inline void PrintTo(const LogLine& line, std::ostream* out)
{
    *out << '[' << line.level << "] " << line.module << ' ' << line.file << ':' << line.line << " \"" << line.text
         << '"';
}

} // namespace host

namespace test {

/// The captured lines of one module: `EXPECT_THAT(linesOf(log, "..."), ElementsAre(host::LogLine{...}))`.
inline std::vector<host::LogLine> linesOf(const host::LogCapture& log, const std::string& module)
{
    std::vector<host::LogLine> lines = log.lines();
    std::erase_if(lines, [&](const host::LogLine& line) { return line.module != module; });
    return lines;
}

/// A pointer as log lines show it.
inline std::string shown(const void* pointer)
{
    char text[32];
    std::snprintf(text, sizeof text, "%p", pointer);
    return text;
}

} // namespace test
