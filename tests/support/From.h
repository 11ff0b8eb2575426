#pragma once

#include <ostream>
#include <string>

namespace test {

/// Where an application calls from.
enum class From { GUI_THREAD, WORKER };

inline std::string nameOf(From from)
{
    return from == From::GUI_THREAD ? "GuiThread" : "Worker";
}

inline void PrintTo(From from, std::ostream* out)
{
    *out << nameOf(from);
}

} // namespace test
