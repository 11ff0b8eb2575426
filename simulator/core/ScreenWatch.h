#pragma once

#include "simulator/core/ScreenCondition.h"
#include "simulator/core/ScreenReader.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace host {
class LoopAttention;
}

namespace simulator {

/// Looks at each screen that there is, in order, on a thread of its own: for those who wait for something, and for
/// those who want to hear of every change. While somebody is there it remembers the last screens, so that nobody misses
/// what has come between his key and his waiting; else the screen is not read. The GUI thread waits for none of them,
/// and they wait for each other no longer than one condition takes for one screen. Safe from any thread but the GUI
/// thread.
///
/// Locks: one guards who is there, and is held while it tells, but not while a condition is judged; it is taken before
/// the reader's. The other guards what the GUI thread brings, a leaf.
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

    /// Somebody is there until leave(): what he may ask for later is remembered from now on.
    void join(Owner owner);

    /// Judges the screens from number `since` on that it remembers, and from now on every one, for so long in real
    /// time; `since` 0 begins with the screen as it is when all that is queued by now has been handled. What holds
    /// already is judged here, and `then` called before this returns. False where this owner waits for too much
    /// already. An owner calls it on one thread at a time.
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

    class Reading;

    struct Wait {
        Owner owner;
        ScreenCondition condition;
        std::uint64_t next; ///< the number of the first screen that it has not been judged for
        Time deadline;
        Then then;
        Time patience{};   ///< until then the screen may come that has been asked for
        ScreenPtr shown{}; ///< the one that has been asked for
        bool isAsking = false;
        bool isLast = false; ///< the screen that has been asked for is the last one
        bool isBehind = false;
        bool isOver = false;
    };
    using WaitPtr = std::shared_ptr<Wait>;

    /// Somebody who is there.
    struct Party {
        bool hasJoined = false;
        std::vector<WaitPtr> waits{};
        std::deque<WaitPtr> behind{}; ///< those of them that have a screen before them, in turn
        std::uint64_t after = 0;
        Listener listener{};
    };

    /// Another screen, or one that somebody has asked for.
    struct News {
        ScreenPtr screen;
        WaitPtr askedBy;
    };

    void run();
    void bring(News news);
    bool waitForWork();
    std::deque<News> takeNews();
    void handle(const News& news);
    void changed(const ScreenPtr& screen);
    void shown(const WaitPtr& wait, const ScreenPtr& screen);

    bool isFull(Owner owner) const;
    std::optional<Verdict> judgeRemembered(Wait& wait, Lock& lock) const;
    ScreenPtr judgeAtHand(const Wait& wait, Lock& lock) const;
    void begin(const WaitPtr& wait, const ScreenPtr& screen);
    void add(const WaitPtr& wait);
    void ask(const WaitPtr& wait);
    ScreenPtr nextFor(const Wait& wait) const;
    void queueWhereBehind(const WaitPtr& wait);
    WaitPtr takeTurn();
    void judgeNext(Lock& lock);
    void conclude(const WaitPtr& wait, const Verdict& verdict);
    void dropLapsed();
    void dropEmpty(Owner owner);
    void attend();
    void publish();

    ScreenReader& mReader;
    const std::chrono::milliseconds mPatience;

    std::mutex mMutex; ///< guards what follows, up to the other one
    std::deque<ScreenPtr> mRemembered;
    std::map<Owner, Party> mParties;
    std::deque<Owner> mTurns; ///< whose conditions are behind, each once; some have left
    Time mNextLapse = Time::max();
    bool mIsListening = false;
    std::unique_ptr<host::LoopAttention> mAttention;
    bool mHasEnded = false;

    std::mutex mBringing;
    std::condition_variable mBrought;
    std::deque<News> mNews;
    Time mAlarm = Time::max();
    bool mHasTurns = false;
    bool mStopping = false;
    std::thread mThread;
};

} // namespace simulator
