#pragma once

#include "simulator/core/PhoneClock.h"
#include "simulator/core/ScreenWatch.h"
#include "simulator/script/ScriptedPhone.h"
#include "simulator/script/Threads.h"

namespace simulator {

/// The telephone of this process. Made and left on the GUI thread, used by the script's thread.
class HostPhone final : public ScriptedPhone {
public:
    explicit HostPhone(host::Lcd& lcd);
    ~HostPhone() override;

    /// From here on isThere() is false and nobody waits any more.
    void leave();

    bool press(PegKey key) override;
    bool release(PegKey key) override;
    void pass(std::int64_t milliseconds) override;
    bool advance(std::int64_t milliseconds) override;
    bool settle(const std::function<void()>& standsStill) override;
    std::string say(const std::string& wire, const std::string& line) override;
    std::optional<host::Workplace> workplace(const std::vector<std::string>& wanted) override;
    host::Workplace::Typed type(const std::string& text) override;
    std::string translate(const std::string& key) override;
    void rest(std::chrono::milliseconds time) override;
    host::Picture picture() override;
    ScreenPtr screen() override;
    std::optional<std::string> waitFor(const ScreenCondition& condition, std::chrono::milliseconds limit) override;
    bool isThere() override;

private:
    bool becomeIdle(std::function<void()>& standsStill);
    void waitForThreads();

    template <typename Answer>
    std::optional<Answer> onGuiThread(std::function<Answer()> ask);

    host::Lcd& mLcd;
    OtherThreads mOtherThreads;
    PhoneClock mClock;
    ScreenReader mReader;
    ScreenWatch mWatch{mReader};
};

} // namespace simulator
