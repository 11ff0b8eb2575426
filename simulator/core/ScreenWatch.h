#pragma once

#include "simulator/core/ScreenCondition.h"
#include "simulator/core/ScreenReader.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <thread>
#include <vector>

namespace host {
class LoopAttention;
}

namespace simulator {

/// Looks at each screen that there is, in order, on a thread of its own: for those who wait for something, and for
/// those who want to hear of every change. It remembers the last screens, so that nobody misses what has come between
/// his key and his waiting. The GUI thread waits for none of them.
/// Safe from any thread but the GUI thread.
///
/// Locks: one is held while it judges and tells, and is taken before the reader's; the other guards what the GUI thread
/// brings, a leaf.
class ScreenWatch {
public:
    enum class End { HELD, LAPSED, GONE };

    /// How waiting has ended: with the screen for which the condition held, or with the last one and what differs. Null
    /// where the telephone has gone, or does not come to reading its screen.
    struct Verdict {
        End end = End::GONE;
        ScreenPtr screen;
        std::string difference;
    };

    /// Called once. Neither this nor a listener may call the watch, or block.
    using Then = std::function<void(const Verdict&)>;
    using Listener = std::function<void(const ScreenPtr&)>;

    /// Whatever tells one from another.
    using Owner = const void*;

    static constexpr std::size_t REMEMBERED = 256;
    static constexpr std::size_t MOST_WAITS = 64;

    /// The reader has to outlive it. `patience` is how long the GUI thread may take to come to the first screen and to
    /// the last one of somebody who waits, whatever his time-out.
    explicit ScreenWatch(ScreenReader& reader, std::chrono::milliseconds patience = std::chrono::seconds(10));
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;
    ~ScreenWatch();

    /// Judges the screens from number `since` on that it remembers, and from now on every one, for so long in real
    /// time; `since` 0 begins with the screen as it is when all that is queued by now has been handled. False where
    /// this owner waits for too much already.
    bool waitFor(Owner owner, ScreenCondition condition, std::uint64_t since, std::chrono::milliseconds limit,
                 Then then);

    /// Tells of every screen behind number `after`; only of the last one of those that have been by now. The owner's
    /// former listener goes.
    void subscribe(Owner owner, std::uint64_t after, Listener listener);
    void unsubscribe(Owner owner);

    /// Nobody is called any more for this owner.
    void leave(Owner owner);

    /// The telephone is going down: everybody hears so who waits.
    void end();

private:
    using Time = std::chrono::steady_clock::time_point;
    using Lock = std::unique_lock<std::mutex>;

    struct Wait {
        Owner owner;
        ScreenCondition condition;
        std::uint64_t since;
        Time deadline;
        Time patience; ///< until then the screen may come that has been asked for
        Then then;
    };
    using WaitPtr = std::shared_ptr<Wait>;

    struct Subscriber {
        std::uint64_t after;
        Listener listener;
    };

    /// Another screen, or one that somebody has asked for.
    struct News {
        ScreenPtr screen;
        WaitPtr askedBy;
    };

    void run();
    void bring(News news);
    void waitForNews(Lock& lock);
    void handle(const News& news);
    void changed(const ScreenPtr& screen);
    void begin(const WaitPtr& wait, const ScreenPtr& screen);
    bool judge(const Wait& wait, const ScreenPtr& screen) const;
    void ask(const WaitPtr& wait);
    void dropLapsed();
    void publishDeadline();
    void attend();

    ScreenReader& mReader;
    const std::chrono::milliseconds mPatience;

    std::mutex mJudging; ///< guards what follows, up to the other one
    std::deque<ScreenPtr> mRemembered;
    std::vector<WaitPtr> mWaits;   ///< those that every screen is judged for
    std::vector<WaitPtr> mPending; ///< those that wait for their first screen, or for their last one
    std::map<Owner, Subscriber> mSubscribers;
    std::unique_ptr<host::LoopAttention> mAttention;
    bool mHasEnded = false;

    std::mutex mMutex;
    std::condition_variable mBrought;
    std::deque<News> mNews;
    Time mNextDeadline = Time::max();
    bool mStopping = false;
    std::thread mThread;
};

} // namespace simulator
