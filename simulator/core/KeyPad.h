#pragma once

#include "toolkit/PegMessage.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

namespace simulator {

/// The keys as several pages hold them. A key is down while at least one page holds it; one that moves through a list
/// goes on while it is down; what a page held when it went is let go.
/// Safe from any thread.
class KeyPad {
public:
    /// Whatever tells one page from another.
    using Page = const void*;

    KeyPad();
    KeyPad(const KeyPad&) = delete;
    KeyPad& operator=(const KeyPad&) = delete;
    ~KeyPad();

    /// False when the telephone does not take the key.
    bool down(Page page, PegKey key);

    enum class Press { TAKEN, HELD, REFUSED };

    /// Down and up. Nothing happens where somebody holds the key, and where the telephone does not take it.
    Press press(Page page, PegKey key);

    /// Presses once more what is down: on a virtual clock a key goes on when somebody says so.
    void again(PegKey key);

    void up(Page page, PegKey key);
    void leave(Page page);

private:
    using Time = std::chrono::steady_clock::time_point;

    void runTimes();
    void pressWhatIsDue(Time now);
    void releaseWhatIsUp(Time now);
    Time nextTime() const;
    bool isHeld(PegKey key) const;
    bool take(Page page, PegKey key);
    void letGo(Page page, PegKey key);

    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mStopping = false;
    std::set<std::pair<PegKey, Page>> mHeld;
    std::map<PegKey, Time> mRepeats;
    std::map<PegKey, Time> mReleases; ///< those that the telephone has not taken yet
    std::thread mTimer;
};

} // namespace simulator
