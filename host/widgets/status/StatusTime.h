#pragma once

#include "toolkit/PegThing.h"

#include <cstdint>
#include <optional>
#include <string>

namespace host {

class StatusTime;

/// Something on the screen that shows a clock or a call timer.
class StatusTimeView {
public:
    /// The one that it shows; null where there is none.
    virtual const StatusTime* statusTime() const = 0;

    /// Another text stands there now.
    virtual void statusTimeChanged() = 0;

protected:
    ~StatusTimeView() = default;
};

/// A time that goes on by itself from what it was set to.
class RunningTime {
public:
    explicit RunningTime(std::int64_t milliseconds);

    std::int64_t milliseconds() const;

private:
    std::int64_t mStart;
};

/// The clock and the call timer of the status lines. They go on while nobody looks, and wake the telephone only while
/// somebody does: once a minute, or once a second for the timer. GUI thread only.
class StatusTime : public PegThing {
public:
    StatusTime();
    ~StatusTime() override;

    /// The one made last of those that have a text to show: what views without one of their own show. Null where none
    /// has.
    static const StatusTime* current();

    /// A view that watches is told of changes, and may then let itself or others begin or end to watch. One that dies
    /// must not watch any more.
    static void watch(StatusTimeView& view, bool on);

    int Message(const PegMessage& message) override;

    void showClock(bool on);

    /// Numbers out of range are cut into it.
    void setClock(int hours, int minutes, int seconds);

    /// "HH:MM:SS" and "MM:SS" count up from there, any other text stands still. Takes the clock's place until it is
    /// stopped; an empty text stops it.
    void setTimer(const std::string& text);
    void stopTimer();

    /// What is to be shown now; empty where nothing is.
    std::string text() const;

    /// Whether the text changes by itself.
    bool runs() const;

private:
    static void currentChanged();
    static void scheduleAll();
    template <typename Change>
    void change(Change apply);
    void tellViews() const;
    bool isWatched() const;
    void schedule();
    int untilNextText() const;

    bool mClockShown = false;
    bool mTimerHasHours = false;
    RunningTime mClock{0};
    std::optional<RunningTime> mTimer;
    std::string mStandingText;
};

} // namespace host
