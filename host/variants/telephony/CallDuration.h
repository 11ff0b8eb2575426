#pragma once

#include "DisplayAPI/DurationText.h"
#include "host/clock/Clock.h"
#include "host/widgets/status/TimeText.h"
#include "host/widgets/telephony/EverySecond.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace DisplayAPI {

/// How long a call has lasted. It begins once, and ends once. GUI thread only.
class CallDuration {
public:
    /// `passed` is called for each second while it runs.
    explicit CallDuration(std::function<void()> passed) : mPassed(std::move(passed)) {}

    bool runs() const { return mBeat.has_value(); }

    void begin()
    {
        if (mBegin || mSeconds)
            return;
        mBegin = host::Clock::instance().now();
        mBeat.emplace(mPassed);
    }

    /// One that has not begun will not begin any more.
    void end()
    {
        if (!mSeconds)
            mSeconds = mBegin ? seconds() : NEVER_BEGUN;
        mBeat.reset();
    }

    /// Empty where it has not begun.
    std::string text() const
    {
        const bool isShown = mBegin.has_value();
        return isShown ? durationText(mSeconds ? *mSeconds : seconds()) : std::string();
    }

private:
    static constexpr std::int64_t NEVER_BEGUN = 0;

    std::int64_t seconds() const { return (host::Clock::instance().now() - *mBegin) / host::SECOND; }

    std::function<void()> mPassed;
    std::optional<std::int64_t> mBegin;
    std::optional<std::int64_t> mSeconds; ///< where it has ended
    std::optional<host::EverySecond> mBeat;
};

} // namespace DisplayAPI
