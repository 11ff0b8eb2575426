#include "host/widgets/ApplicationObservers.h"

#include "toolkit/PegThing.h"

#include <algorithm>

namespace host {

/// The observations that were there when it began, one after the other, while they come and go.
class ApplicationObservers::Telling {
public:
    explicit Telling(ApplicationObservers& all) : mAll(all), mNext(all.mFirst), mLast(all.mLast)
    {
        mAll.mTellings.push_back(this);
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;
    ~Telling() { mAll.mTellings.pop_back(); }

    /// Null behind the last.
    const Observation* next()
    {
        const Observation* const one = mNext;
        if (one != nullptr)
            mNext = one == mLast ? nullptr : one->after;
        return one;
    }

    void skip(const Observation& gone)
    {
        if (mNext == &gone)
            next();
        if (mLast == &gone)
            mLast = gone.before;
    }

private:
    ApplicationObservers& mAll;
    const Observation* mNext;
    const Observation* mLast;
};

ApplicationObservers& ApplicationObservers::instance()
{
    static auto* const all = new ApplicationObservers;
    return *all;
}

bool ApplicationObservers::observes(const PegThing& observer, const KestrelApplication& application) const
{
    const auto [first, last] = mByObserver.equal_range(&observer);
    return std::any_of(first, last, [&](const auto& entry) { return entry.second.application == &application; });
}

void ApplicationObservers::add(const KestrelApplication& application, PegThing& observer)
{
    if (!observes(observer, application))
        append(mByObserver.emplace(&observer, Observation{&application, &observer})->second);
}

void ApplicationObservers::append(Observation& one)
{
    one.before = mLast;
    (mLast != nullptr ? mLast->after : mFirst) = &one;
    mLast = &one;
}

void ApplicationObservers::remove(const PegThing& observer)
{
    const auto [first, last] = mByObserver.equal_range(&observer);
    std::for_each(first, last, [this](const auto& entry) { unlink(entry.second); });
    mByObserver.erase(first, last);
}

void ApplicationObservers::remove(const KestrelApplication& application)
{
    std::erase_if(mByObserver, [&](const auto& entry) {
        const bool isGone = entry.second.application == &application;
        if (isGone)
            unlink(entry.second);
        return isGone;
    });
}

void ApplicationObservers::unlink(const Observation& one)
{
    for (Telling* telling : mTellings)
        telling->skip(one);
    (one.before != nullptr ? one.before->after : mFirst) = one.after;
    (one.after != nullptr ? one.after->before : mLast) = one.before;
}

void ApplicationObservers::tell(const KestrelApplication& application, PegMessage message)
{
    Telling telling(*this);
    while (const Observation* one = telling.next()) {
        if (one->application != &application)
            continue;
        message.pTarget = one->observer;
        one->observer->Message(message);
    }
}

} // namespace host
