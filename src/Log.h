#pragma once

#include "utilities/Logging.h"

namespace DisplayAPI {

/// A text that is its own format: it takes no arguments, and a '%' of its own is doubled.
class PlainText {
public:
    consteval PlainText(const char* text) : mText(text)
    {
        if (!isPlain(text))
            throw "a text that takes arguments";
    }

    constexpr const char* text() const { return mText; }

    static constexpr bool isPlain(const char* text)
    {
        for (; *text != '\0'; ++text)
            if (*text == '%' && *++text != '%')
                return false;
        return true;
    }

private:
    const char* mText;
};

/// The log as one source file writes it: module and file are the same for all its lines. Line numbers are part of the
/// log's text: they stay when code moves.
struct Log {
    const char* module;
    const char* file;

    void operator()(int level, int line, PlainText text) const
    {
        // A compiler that cannot see the text warns of what PlainText has ruled out.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
        if (loggingOnUni())
            logAppUni(module, file, level, line, text.text());
#pragma GCC diagnostic pop
    }

    template <typename First, typename... Rest>
    void operator()(int level, int line, const char* text, First first, Rest... rest) const
    {
        if (loggingOnUni())
            logAppUni(module, file, level, line, text, first, rest...);
    }
};

enum LogLevel : int { LOST = 2, REFUSED = 3, TRACE = 5 };

} // namespace DisplayAPI
