#pragma once

/// Whether anybody listens to the log. Callers ask before they format.
bool loggingOnUni();

/// Writes one line to the log. Levels: 2 lost requests and missing toolkit objects, 3 refused operations, 5 tracing.
/// `text` and what follows it are as for printf. From any thread.
void logAppUni(const char* module, const char* file, int level, int line, const char* text, ...)
    __attribute__((format(printf, 5, 6)));
