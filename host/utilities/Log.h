#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace host {

struct LogLine {
    std::string module;
    std::string file;
    int level = 0;
    int line = 0;
    std::string text; ///< without a line end
};

/// Who listens to the log, and to which part of it. Off unless asked: the environment's DISPLAYAPI_LOG=LEVEL or
/// LEVEL:MODULE at process start sends lines of that level and below, of modules that start so, to stderr.
/// Safe from any thread.
class Log {
public:
    using Sink = std::function<void(const LogLine&)>;

    /// Lines above `level`, and of modules that do not start with `modulePrefix`, are dropped.
    struct Filter {
        int level = 5;
        std::string modulePrefix;
    };

    /// Adds a listener and returns its number. A sink is called with the log's lock held: it must not log.
    static int addSink(Sink sink, Filter filter);

    /// No call of the sink afterwards.
    static void removeSink(int number);

    /// The filter that `setting` (the environment variable's value) asks for; false where it asks for nothing.
    static bool parse(const char* setting, Filter& filter);

    static void write(const LogLine& line);
};

/// Keeps the lines that are written while it lives.
class LogCapture {
public:
    LogCapture();
    explicit LogCapture(Log::Filter filter);
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture();

    std::vector<LogLine> lines() const;

private:
    mutable std::mutex mMutex;
    std::vector<LogLine> mLines;
    int mNumber;
};

} // namespace host
