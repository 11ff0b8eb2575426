#pragma once

#include "utilities/Logging.h"

namespace DisplayAPI {

/// The log as one source file writes it: module and file are the same for all its lines.
struct Log {
    const char* module;
    const char* file;

    /// Line numbers are part of the log's text: they stay when code moves.
    template <typename... Args>
    void operator()(int level, int line, const char* text, Args... args) const
    {
        if (!loggingOnUni())
            return;
        if constexpr (sizeof...(args) == 0)
            logAppUni(module, file, level, line, "%s", text);
        else
            logAppUni(module, file, level, line, text, args...);
    }
};

enum LogLevel : int { LOST = 2, REFUSED = 3, TRACE = 5 };

} // namespace DisplayAPI
