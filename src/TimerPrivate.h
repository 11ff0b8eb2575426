#pragma once

#include "DisplayAPI/TimerPrivateIfc.h"
#include "widgets/KestrelPegTimer.h"

#include <memory>

namespace DisplayAPI {

/// A timer on the toolkit's. GUI thread only.
class TimerPrivate : public KestrelTimerObserver, public TimerPrivateIfc {
public:
    /// Values below 1 leave the toolkit's timer without an interval.
    explicit TimerPrivate(int interval);
    TimerPrivate(const TimerPrivate&) = delete;
    TimerPrivate& operator=(const TimerPrivate&) = delete;

    int Message(const PegMessage& message) override;

    /// Recalls the command where it has not been delivered yet.
    ~TimerPrivate() override;

    void start(int ms) override;
    void stop() override;
    void enableSingleShot(bool on) override;
    void addCommand(Command* command) override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void addEventListener(TimerEvent* listener) override;
    void removeEventListener(TimerEvent* listener) override;
    const std::vector<CommandListener*>& getCommandListenerList() const override;
    const std::vector<TimerEvent*>& getTimerEventListenerList() const override;

private:
    struct Walk;

    void timerEvent();
    template <typename Listener, typename Tell>
    bool tellEach(const std::vector<Listener*>& listeners, Tell tell);
    template <typename Listener>
    void removeFirst(std::vector<Listener*>& listeners, const Listener* listener);

    std::vector<CommandListener*> mCommandListeners;
    std::vector<TimerEvent*> mEventListeners;
    std::unique_ptr<KestrelPegTimer> mTimer;
    Command* mCommand = nullptr;
    std::shared_ptr<Walk> mWalk; ///< the innermost one
};

} // namespace DisplayAPI
