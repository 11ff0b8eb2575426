#pragma once

#include "simulator/script/ScriptedPhone.h"

#include <condition_variable>
#include <mutex>

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
    bool settle() override;
    host::Picture picture() override;
    void waitForFrame(std::chrono::milliseconds limit) override;
    bool isThere() override;

private:
    bool becomeIdle();
    void waitForThreads();
    void noteFrame();

    host::Lcd& mLcd;
    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mFrameIsNew = false;
    bool mIsThere = true;
};

} // namespace simulator
