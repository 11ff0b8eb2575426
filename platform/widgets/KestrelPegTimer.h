#pragma once

#include <memory>

struct PegMessage;

/// Whom a toolkit timer tells.
class KestrelTimerObserver {
public:
    /// A message of type PM_TIMER: the timer has run out. Called on the GUI thread; may restart, stop or delete the
    /// timer. The result is not used.
    virtual int Message(const PegMessage& message) = 0;

protected:
    ~KestrelTimerObserver() = default;
};

/// A timer of the toolkit. Repeats until it is told otherwise. GUI thread only. Times are milliseconds.
class KestrelPegTimer {
public:
    KestrelPegTimer();
    KestrelPegTimer(const KestrelPegTimer&) = delete;
    KestrelPegTimer& operator=(const KestrelPegTimer&) = delete;

    /// Stops it.
    ~KestrelPegTimer();

    /// Not owned; null tells nobody.
    void setObserver(KestrelTimerObserver* observer);

    /// Takes effect at the next expiry: a running timer goes on with it. Values below 1 are ignored. Starts nothing.
    void setInterval(int ms);
    void setSingleShot(bool on);

    /// Runs from now on with this interval, which it keeps; a running one starts anew. Values below 1 are ignored.
    void start(int ms);
    void stop();

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};
