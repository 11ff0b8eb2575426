#include "doubles/Recorder.h"

#include "utilities/Threadable.h"

#include <algorithm>
#include <cstdio>

namespace doubles {

namespace {

bool startsWith(const Call& call, const std::string& start)
{
    return call.text.rfind(start, 0) == 0;
}

} // namespace

std::string printed(const void* value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%p", value);
    return text;
}

Recorder& Recorder::instance()
{
    static auto* const recorder = new Recorder;
    return *recorder;
}

void Recorder::add(const void* object, std::string text)
{
    std::lock_guard lock(mMutex);
    mCalls.push_back({object, std::move(text), Threadable::currentThreadId()});
}

void Recorder::clear()
{
    std::lock_guard lock(mMutex);
    mCalls.clear();
}

std::vector<Call> Recorder::calls() const
{
    std::lock_guard lock(mMutex);
    return mCalls;
}

std::vector<std::string> Recorder::texts() const
{
    std::vector<std::string> texts;
    for (const Call& call : calls())
        texts.push_back(call.text);
    return texts;
}

std::vector<std::string> Recorder::textsOf(const void* object) const
{
    std::vector<std::string> texts;
    for (const Call& call : calls())
        if (call.object == object)
            texts.push_back(call.text);
    return texts;
}

Call Recorder::last(const std::string& start) const
{
    const std::vector<Call> all = calls();
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](const Call& c) { return startsWith(c, start); });
    return found != all.rend() ? *found : Call{};
}

int Recorder::count(const std::string& start) const
{
    const std::vector<Call> all = calls();
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const Call& call) { return startsWith(call, start); }));
}

} // namespace doubles
