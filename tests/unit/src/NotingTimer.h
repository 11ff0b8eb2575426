#pragma once

#include "DisplayAPI/TimerPrivateIfc.h"
#include "doubles/Recorder.h"

namespace test {

/// Notes what reaches the GUI-thread side of a timer.
class NotingTimer : public DisplayAPI::TimerPrivateIfc {
public:
    ~NotingTimer() override { doubles::Recorder::instance().note(this, "~Timer"); }

    void start(int ms) override { note("start", ms); }
    void stop() override { note("stop"); }
    void enableSingleShot(bool on) override { note("enableSingleShot", on); }
    void addCommand(DisplayAPI::Command* command) override { note("addCommand", command); }
    void addCommandListener(DisplayAPI::CommandListener* listener) override { note("addCommandListener", listener); }
    void removeCommandListener(DisplayAPI::CommandListener* listener) override
    {
        note("removeCommandListener", listener);
    }
    void addEventListener(DisplayAPI::TimerEvent* listener) override { note("addEventListener", listener); }
    void removeEventListener(DisplayAPI::TimerEvent* listener) override { note("removeEventListener", listener); }
    const std::vector<DisplayAPI::CommandListener*>& getCommandListenerList() const override
    {
        return mCommandListeners;
    }
    const std::vector<DisplayAPI::TimerEvent*>& getTimerEventListenerList() const override { return mEventListeners; }

private:
    template <typename... Args>
    void note(const std::string& name, const Args&... args)
    {
        doubles::Recorder::instance().note(this, "Timer::" + name, args...);
    }

    std::vector<DisplayAPI::CommandListener*> mCommandListeners;
    std::vector<DisplayAPI::TimerEvent*> mEventListeners;
};

} // namespace test
