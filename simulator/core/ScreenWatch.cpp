#include "simulator/core/ScreenWatch.h"

#include "host/toolkit/LoopAttention.h"

#include <algorithm>
#include <pthread.h>
#include <utility>

namespace simulator {

namespace {

using std::chrono::steady_clock;

/// Further than any time-out, and not so far that a clock cannot wait for it.
constexpr std::chrono::hours LONGEST_SLEEP(1);

/// How long somebody waits himself for the screen as it is: mostly it is at hand.
constexpr std::chrono::milliseconds AT_HAND(20);

/// Begins with the screen that is asked for.
constexpr std::uint64_t FROM_NOW = UINT64_MAX;

constexpr char UNREAD[] = "the screen cannot be read: the GUI thread stands still\n";

} // namespace

/// A screen that is on its way to somebody who waits for it only for a while.
class ScreenWatch::Reading {
public:
    /// False where he waits no longer.
    bool give(const ScreenPtr& screen)
    {
        const std::lock_guard lock(mMutex);
        if (!mIsAwaited)
            return false;
        mScreen = screen;
        mCame.notify_all();
        return true;
    }

    /// Nothing where it has not come by then.
    std::optional<ScreenPtr> wait(std::chrono::milliseconds limit)
    {
        std::unique_lock lock(mMutex);
        mCame.wait_for(lock, limit, [this] { return mScreen.has_value(); });
        return mScreen;
    }

    /// What has come after all; what comes later is not taken.
    std::optional<ScreenPtr> letGo()
    {
        const std::lock_guard lock(mMutex);
        mIsAwaited = false;
        return mScreen;
    }

private:
    std::mutex mMutex;
    std::condition_variable mCame;
    std::optional<ScreenPtr> mScreen;
    bool mIsAwaited = true;
};

ScreenWatch::ScreenWatch(ScreenReader& reader, std::chrono::milliseconds patience)
    : mReader(reader), mPatience(patience), mThread([this] { run(); })
{
    pthread_setname_np(mThread.native_handle(), "screen-watch");
}

ScreenWatch::~ScreenWatch()
{
    end();
    {
        const std::lock_guard lock(mBringing);
        mStopping = true;
        mBrought.notify_all();
    }
    mThread.join();
}

void ScreenWatch::join(Owner owner)
{
    const std::lock_guard lock(mMutex);
    mParties[owner].hasJoined = true;
    attend();
}

bool ScreenWatch::waitFor(Owner owner, ScreenCondition condition, std::uint64_t since, std::chrono::milliseconds limit,
                          Then then)
{
    const auto wait = std::make_shared<Wait>(
        Wait{owner, std::move(condition), since != 0 ? since : FROM_NOW, steady_clock::now() + limit, std::move(then)});
    Lock lock(mMutex);
    if (isFull(owner))
        return false;
    if (mHasEnded)
        return wait->then({}), true;
    if (since != 0) {
        if (const auto verdict = judgeRemembered(*wait, lock))
            return wait->then(*verdict), true;
        add(wait);
        ask(wait);
        return true;
    }
    if (const ScreenPtr screen = judgeAtHand(*wait, lock))
        return wait->then({End::HELD, screen, {}}), true;
    add(wait); // what comes behind the first screen is remembered from here on
    lock.unlock();
    const auto reading = std::make_shared<Reading>();
    mReader.read([this, wait, reading](const ScreenPtr& screen) {
        if (!reading->give(screen))
            bring({screen, wait});
    });
    if (const auto screen = reading->wait(AT_HAND))
        begin(wait, *screen);
    else if (const auto late = reading->letGo())
        bring({*late, wait});
    return true;
}

bool ScreenWatch::isFull(Owner owner) const
{
    const auto party = mParties.find(owner);
    return party != mParties.end() && party->second.waits.size() >= MOST_WAITS;
}

/// The lock is free while it is judged; nobody else knows of the wait yet.
std::optional<ScreenWatch::Verdict> ScreenWatch::judgeRemembered(Wait& wait, Lock& lock) const
{
    while (const ScreenPtr screen = nextFor(wait)) {
        lock.unlock();
        const bool holds = wait.condition.holdsFor(*screen);
        lock.lock();
        if (holds)
            return Verdict{End::HELD, screen, {}};
        wait.next = screen->number + 1;
    }
    return {};
}

/// Without waiting for the GUI thread. Null where the screen is not at hand, or it does not hold for it.
ScreenPtr ScreenWatch::judgeAtHand(const Wait& wait, Lock& lock) const
{
    lock.unlock();
    const ScreenPtr screen = mReader.atHand();
    const bool holds = screen != nullptr && wait.condition.holdsFor(*screen);
    lock.lock();
    return holds && !mHasEnded ? screen : nullptr;
}

/// With the screen as it is. The lock is free while it is judged: nobody else judges before there is a first screen.
void ScreenWatch::begin(const WaitPtr& wait, const ScreenPtr& screen)
{
    const bool holds = screen != nullptr && wait->condition.holdsFor(*screen);
    const std::lock_guard lock(mMutex);
    if (holds && !wait->isOver)
        return conclude(wait, {End::HELD, screen, {}});
    if (screen != nullptr)
        wait->next = screen->number + 1;
    shown(wait, screen);
    publish();
}

/// It is asking from here on, which the caller does for it.
void ScreenWatch::add(const WaitPtr& wait)
{
    if (mHasEnded) {
        wait->isOver = true; // its screen may still come
        return wait->then({});
    }
    wait->isAsking = true;
    wait->patience = steady_clock::now() + mPatience;
    mParties[wait->owner].waits.push_back(wait);
    mNextLapse = std::min(mNextLapse, wait->patience);
    attend();
    publish();
}

/// Has the screen read for it.
void ScreenWatch::ask(const WaitPtr& wait)
{
    mReader.read([this, wait](ScreenPtr screen) { bring({std::move(screen), wait}); });
}

void ScreenWatch::subscribe(Owner owner, std::uint64_t after, Listener listener)
{
    const std::lock_guard lock(mMutex);
    if (mHasEnded)
        return;
    if (!mRemembered.empty() && mRemembered.back()->number > after)
        listener(mRemembered.back());
    Party& party = mParties[owner];
    party.after = after;
    party.listener = std::move(listener);
    attend();
}

void ScreenWatch::unsubscribe(Owner owner)
{
    const std::lock_guard lock(mMutex);
    if (const auto party = mParties.find(owner); party != mParties.end())
        party->second.listener = {};
    dropEmpty(owner);
    attend();
}

void ScreenWatch::leave(Owner owner)
{
    const std::lock_guard lock(mMutex);
    if (const auto party = mParties.extract(owner))
        for (const WaitPtr& wait : party.mapped().waits)
            wait->isOver = true;
    attend();
}

void ScreenWatch::end()
{
    const std::lock_guard lock(mMutex);
    mHasEnded = true;
    for (const auto& [owner, party] : std::exchange(mParties, {}))
        for (const WaitPtr& wait : party.waits) {
            wait->isOver = true;
            wait->then({});
        }
    attend();
}

void ScreenWatch::bring(News news)
{
    const std::lock_guard lock(mBringing);
    mNews.push_back(std::move(news));
    mBrought.notify_all();
}

void ScreenWatch::run()
{
    while (waitForWork()) {
        for (const News& news : takeNews())
            handle(news);
        Lock lock(mMutex);
        dropLapsed();
        judgeNext(lock);
        publish();
    }
}

bool ScreenWatch::waitForWork()
{
    Lock lock(mBringing);
    while (mNews.empty() && !mHasTurns && !mStopping && steady_clock::now() < mAlarm)
        mBrought.wait_until(lock, std::min(mAlarm, steady_clock::now() + LONGEST_SLEEP));
    return !mStopping;
}

std::deque<ScreenWatch::News> ScreenWatch::takeNews()
{
    const std::lock_guard lock(mBringing);
    return std::exchange(mNews, {});
}

void ScreenWatch::handle(const News& news)
{
    const std::lock_guard lock(mMutex);
    if (news.askedBy != nullptr)
        shown(news.askedBy, news.screen);
    else if (mIsListening)
        changed(news.screen);
}

void ScreenWatch::changed(const ScreenPtr& screen)
{
    mRemembered.push_back(screen);
    if (mRemembered.size() > REMEMBERED)
        mRemembered.pop_front();
    for (const auto& [owner, party] : mParties) {
        if (party.listener && screen->number > party.after)
            party.listener(screen);
        for (const WaitPtr& wait : party.waits)
            queueWhereBehind(wait);
    }
}

/// A screen that it has asked for is there; null where none could be read.
void ScreenWatch::shown(const WaitPtr& wait, const ScreenPtr& screen)
{
    if (wait->isOver)
        return;
    if (screen == nullptr)
        return conclude(wait, {mReader.isThere() ? End::LAPSED : End::GONE, nullptr, UNREAD});
    wait->isAsking = false;
    wait->shown = screen;
    wait->next = wait->next == FROM_NOW ? screen->number : wait->next;
    wait->isLast = wait->isLast || wait->deadline <= steady_clock::now();
    mNextLapse = std::min(mNextLapse, wait->deadline);
    queueWhereBehind(wait);
}

/// Null where it has been judged for all, which ends with its last one, however fast others come.
ScreenPtr ScreenWatch::nextFor(const Wait& wait) const
{
    const auto number = [](const ScreenPtr& screen) { return screen->number; };
    const auto found = std::ranges::lower_bound(mRemembered, wait.next, {}, number);
    const ScreenPtr next = found != mRemembered.end() ? *found : nullptr;
    const bool isShownNext = wait.shown != nullptr && wait.shown->number >= wait.next &&
                             (next == nullptr || wait.shown->number < next->number);
    if (isShownNext)
        return wait.shown;
    const bool isTooLate = wait.isLast && !wait.isAsking && next != nullptr && next->number > wait.shown->number;
    return isTooLate ? nullptr : next;
}

/// One that is to end gets its turn as well.
void ScreenWatch::queueWhereBehind(const WaitPtr& wait)
{
    const bool isDue = (wait->isLast && !wait->isAsking) || nextFor(*wait) != nullptr;
    if (wait->isBehind || !isDue)
        return;
    wait->isBehind = true;
    Party& party = mParties[wait->owner];
    if (party.behind.empty())
        mTurns.push_back(wait->owner);
    party.behind.push_back(wait);
}

/// Of those who are there one after the other, and of what each of them waits for too. Null where nothing is behind.
ScreenWatch::WaitPtr ScreenWatch::takeTurn()
{
    while (!mTurns.empty()) {
        const Owner owner = mTurns.front();
        mTurns.pop_front();
        const auto party = mParties.find(owner);
        if (party == mParties.end() || party->second.behind.empty())
            continue;
        std::deque<WaitPtr>& behind = party->second.behind;
        const WaitPtr wait = behind.front();
        behind.pop_front();
        wait->isBehind = false;
        if (!behind.empty())
            mTurns.push_back(owner);
        if (!wait->isOver)
            return wait;
    }
    return nullptr;
}

/// Judges one condition for one screen, while the lock is free.
void ScreenWatch::judgeNext(Lock& lock)
{
    const WaitPtr wait = takeTurn();
    if (wait == nullptr)
        return;
    const ScreenPtr screen = nextFor(*wait);
    const bool isEnd = screen == nullptr && wait->isLast && !wait->isAsking;
    if (screen == nullptr && !isEnd)
        return;
    lock.unlock();
    const bool holds = !isEnd && wait->condition.holdsFor(*screen);
    const Verdict verdict = isEnd ? Verdict{End::LAPSED, wait->shown, wait->condition.differenceOf(*wait->shown)}
                                  : Verdict{End::HELD, screen, {}};
    lock.lock();
    if (wait->isOver)
        return;
    if (holds || isEnd)
        return conclude(wait, verdict);
    wait->next = screen->number + 1;
    queueWhereBehind(wait);
}

void ScreenWatch::conclude(const WaitPtr& wait, const Verdict& verdict)
{
    wait->isOver = true;
    std::erase(mParties[wait->owner].waits, wait);
    dropEmpty(wait->owner);
    attend();
    wait->then(verdict);
}

/// Who has waited in vain is shown the screen once more: what changes without a frame is not told of.
void ScreenWatch::dropLapsed()
{
    const auto now = steady_clock::now();
    if (now < mNextLapse)
        return;
    mNextLapse = Time::max();
    std::vector<WaitPtr> unread;
    for (const auto& [owner, party] : mParties) {
        for (const WaitPtr& wait : party.waits) {
            if (!wait->isAsking && !wait->isLast && wait->deadline <= now) {
                wait->isLast = true;
                wait->isAsking = true;
                wait->patience = now + mPatience;
                ask(wait);
            }
            if (wait->isAsking && wait->patience <= now)
                unread.push_back(wait);
            else if (wait->isAsking || !wait->isLast)
                mNextLapse = std::min(mNextLapse, wait->isAsking ? wait->patience : wait->deadline);
        }
    }
    for (const WaitPtr& wait : unread)
        conclude(wait, {End::LAPSED, nullptr, UNREAD});
}

/// Who has not joined is there only as long as he wants something.
void ScreenWatch::dropEmpty(Owner owner)
{
    const auto party = mParties.find(owner);
    if (party != mParties.end() && !party->second.hasJoined && party->second.waits.empty() && !party->second.listener)
        mParties.erase(party);
}

/// While somebody looks, the loop paints as soon as it has nothing else to do; while somebody is there, the screen is
/// read with every frame.
void ScreenWatch::attend()
{
    const auto looks = [](const auto& each) { return !each.second.waits.empty() || each.second.listener; };
    const bool isWanted = std::ranges::any_of(mParties, looks);
    if (isWanted != (mAttention != nullptr))
        mAttention = isWanted ? std::make_unique<host::LoopAttention>() : nullptr;
    if (mIsListening == !mParties.empty())
        return;
    mIsListening = !mParties.empty();
    mReader.setListener(mIsListening ? ScreenReader::Then([this](const ScreenPtr& screen) {
        bring({screen, nullptr});
    })
                                     : ScreenReader::Then());
    if (!mIsListening)
        mRemembered.clear();
}

void ScreenWatch::publish()
{
    const std::lock_guard lock(mBringing);
    const bool isSooner = mNextLapse < mAlarm;
    mAlarm = mNextLapse;
    mHasTurns = !mTurns.empty();
    if (isSooner || mHasTurns)
        mBrought.notify_all();
}

} // namespace simulator
