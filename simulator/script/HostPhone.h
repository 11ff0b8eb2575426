#pragma once

#include "simulator/script/ScriptedPhone.h"
#include "toolkit/PegThing.h"

#include <condition_variable>
#include <mutex>
#include <optional>

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
    host::Picture picture() override;
    std::string displayables() override;
    void waitForFrame(std::chrono::milliseconds limit) override;
    bool isThere() override;

private:
    /// Asks the library on the GUI thread, between two messages: while they are handled the display is there, which a
    /// call from the script's thread could not know. Who asks waits as long as the telephone is there, and no longer.
    class Inquiry : public PegThing {
    public:
        explicit Inquiry(HostPhone& phone) : mPhone(phone) {}
        int Message(const PegMessage& message) override;

    private:
        HostPhone& mPhone;
    };

    bool becomeIdle(std::function<void()>& standsStill);
    void moveClock(std::int64_t milliseconds, std::int64_t slice);
    void sleep(std::chrono::milliseconds time);
    void waitForThreads();
    void noteFrame();

    host::Lcd& mLcd;
    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mFrameIsNew = false;
    bool mIsThere = true;
    std::optional<std::string> mAnswer;
    Inquiry mInquiry{*this};
};

} // namespace simulator
