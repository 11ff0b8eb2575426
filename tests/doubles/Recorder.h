#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace doubles {

/// One call that a double has received.
struct Call {
    const void* object = nullptr;
    std::string text; ///< "ListBoxPrivate::setSystemWindowText(2, "up")"
    unsigned int thread = 0;
};

// How arguments read in a call's text.

inline std::string printed(bool value)
{
    return value ? "true" : "false";
}

inline std::string printed(int value)
{
    return std::to_string(value);
}

inline std::string printed(const std::string& value)
{
    return '"' + value + '"';
}

std::string printed(const void* value);

/// "name(first, second)".
template <typename... Args>
std::string callText(const std::string& name, const Args&... args)
{
    std::string list;
    [[maybe_unused]] const auto append = [&list](const std::string& argument) {
        list += (list.empty() ? "" : ", ") + argument;
    };
    (append(printed(args)), ...);
    return name + '(' + list + ')';
}

/// What all doubles have been called with, in order, and on which thread. Safe from any thread.
class Recorder {
public:
    static Recorder& instance();

    template <typename... Args>
    void note(const void* object, const std::string& name, const Args&... args)
    {
        add(object, callText(name, args...));
    }

    void clear();
    std::vector<Call> calls() const;

    /// The texts of all calls, or of those that `object` has received.
    std::vector<std::string> texts() const;
    std::vector<std::string> textsOf(const void* object) const;

    /// The last call that begins with `start`; an empty one where there is none.
    Call last(const std::string& start) const;
    int count(const std::string& start) const;

private:
    void add(const void* object, std::string text);

    mutable std::mutex mMutex;
    std::vector<Call> mCalls;
};

} // namespace doubles
