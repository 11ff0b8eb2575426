#include "utilities/Logging.h"

#include "host/utilities/Log.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>

namespace host {

namespace {

/// Read before every line that the library could write, so that silence costs one load.
constinit std::atomic<bool> gListening{false};

struct Listener {
    Log::Sink sink;
    Log::Filter filter;

    bool wants(const LogLine& line) const
    {
        return line.level <= filter.level && line.module.starts_with(filter.modulePrefix);
    }
};

struct Listeners {
    std::mutex mutex;
    std::map<int, Listener> byNumber;
    int lastNumber = 0;
};

/// Never destroyed: threads may log while the process ends.
Listeners& listeners()
{
    static Listeners* const all = new Listeners;
    return *all;
}

void printLine(const LogLine& line)
{
    std::fprintf(stderr, "[%d] %s %s:%d %s\n", line.level, line.module.c_str(), line.file.c_str(), line.line,
                 line.text.c_str());
}

[[maybe_unused]] const bool gAskedFor = [] {
    Log::Filter filter;
    if (Log::parse(std::getenv("DISPLAYAPI_LOG"), filter))
        Log::addSink(printLine, filter);
    return true;
}();

std::string formatted(const char* text, va_list arguments)
{
    char* buffer = nullptr;
    const int length = vasprintf(&buffer, text, arguments);
    if (length < 0)
        return text;
    std::string result(buffer, static_cast<std::size_t>(length));
    std::free(buffer);
    while (result.ends_with('\n'))
        result.pop_back();
    return result;
}

} // namespace

int Log::addSink(Sink sink, Filter filter)
{
    Listeners& all = listeners();
    std::lock_guard lock(all.mutex);
    all.byNumber[++all.lastNumber] = {std::move(sink), std::move(filter)};
    gListening.store(true, std::memory_order_relaxed);
    return all.lastNumber;
}

void Log::removeSink(int number)
{
    Listeners& all = listeners();
    std::lock_guard lock(all.mutex);
    all.byNumber.erase(number);
    gListening.store(!all.byNumber.empty(), std::memory_order_relaxed);
}

bool Log::parse(const char* setting, Filter& filter)
{
    char* end = nullptr;
    const long level = setting != nullptr ? std::strtol(setting, &end, 10) : 0;
    if (level <= 0 || (*end != '\0' && *end != ':'))
        return false;
    filter = {static_cast<int>(level), *end == ':' ? end + 1 : ""};
    return true;
}

void Log::write(const LogLine& line)
{
    Listeners& all = listeners();
    std::lock_guard lock(all.mutex);
    for (const auto& [number, listener] : all.byNumber)
        if (listener.wants(line))
            listener.sink(line);
}

LogCapture::LogCapture() : LogCapture(Log::Filter{}) {}

LogCapture::LogCapture(Log::Filter filter)
{
    const auto keep = [this](const LogLine& line) {
        std::lock_guard lock(mMutex);
        mLines.push_back(line);
    };
    mNumber = Log::addSink(keep, std::move(filter));
}

LogCapture::~LogCapture()
{
    Log::removeSink(mNumber);
}

std::vector<LogLine> LogCapture::lines() const
{
    std::lock_guard lock(mMutex);
    return mLines;
}

} // namespace host

bool loggingOnUni()
{
    return host::gListening.load(std::memory_order_relaxed);
}

void logAppUni(const char* module, const char* file, int level, int line, const char* text, ...)
{
    if (!loggingOnUni())
        return;
    va_list arguments;
    va_start(arguments, text);
    const std::string formattedText = host::formatted(text, arguments);
    va_end(arguments);
    host::Log::write({module, file, level, line, formattedText});
}
