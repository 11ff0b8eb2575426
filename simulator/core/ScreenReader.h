#pragma once

#include "simulator/core/Screen.h"
#include "toolkit/PegThing.h"

#include <chrono>
#include <functional>
#include <map>
#include <mutex>

namespace simulator {

/// Reads the screen on the GUI thread between two messages, where all of it fits together, and numbers what it reads.
/// Made and left on the GUI thread, used from any other.
///
/// Lock: a mutex guards what is wanted and the last screen, a leaf; nobody is told anything with it held.
class ScreenReader final : public PegThing {
public:
    /// Called on the GUI thread, or by leave() with null; must not block.
    using Then = std::function<void(ScreenPtr)>;

    /// `ask` is called on the GUI thread.
    ScreenReader(host::Lcd& lcd, std::function<ScreenWords()> ask);

    /// The screen, where it is at hand: it has been read, the GUI thread has done nothing since, and nothing is queued.
    /// Else null. Waits for nobody.
    ScreenPtr atHand() const;

    /// Hands over the screen as it is when everything that is queued by now has been handled. Null once the telephone
    /// is going down, or where it takes no message.
    void read(Then then);

    /// The same for who can wait. Null as well where the GUI thread does not come to it within `limit`.
    ScreenPtr read(std::chrono::milliseconds limit);

    /// The same with the pixels.
    ScreenPtr photograph(std::chrono::milliseconds limit);

    /// There is a frame: looks whether it is another screen, where somebody listens. For the front end, on the GUI
    /// thread, in the middle of a message or not.
    void frameReady();

    /// Told of each screen that is another one; null for nobody. Returns when nobody is told any more.
    void setListener(Then listener);

    /// From here on nobody waits any more.
    void leave();
    bool isThere() const;

    int Message(const PegMessage& message) override;

private:
    using Wanted = std::map<std::int32_t, Then>;

    void ask(std::uint16_t message, Then then);
    ScreenPtr waitFor(std::uint16_t message, std::chrono::milliseconds limit);
    bool want(std::int32_t& ticket, Then& then);
    Then take(std::int32_t ticket);
    ScreenPtr look();
    ScreenPtr withPixels(const ScreenPtr& screen);
    void lookIsQueued(bool queued);
    ScreenPtr numbered(Screen screen);

    host::Lcd& mLcd;
    std::function<ScreenWords()> mAsk;
    mutable std::mutex mMutex;
    std::mutex mTelling; ///< held while the listener hears; before the other one
    Wanted mWanted;      ///< by the number that is in their message
    std::uint32_t mLastTicket = 0;
    Then mListener;
    ScreenPtr mLast;
    std::uint64_t mLastBegun = 0; ///< Loop::begun() when that was read
    bool mIsLookQueued = false;   ///< at the last frame
    bool mIsThere = true;
};

} // namespace simulator
