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

constexpr char UNREAD[] = "the screen cannot be read: the GUI thread stands still\n";

} // namespace

ScreenWatch::ScreenWatch(ScreenReader& reader, std::chrono::milliseconds patience)
    : mReader(reader), mPatience(patience), mThread([this] { run(); })
{
    pthread_setname_np(mThread.native_handle(), "screen-watch");
    mReader.setListener([this](const ScreenPtr& screen) { bring({screen, nullptr}); });
}

ScreenWatch::~ScreenWatch()
{
    mReader.setListener({});
    end();
    {
        const std::lock_guard lock(mMutex);
        mStopping = true;
        mBrought.notify_all();
    }
    mThread.join();
}

bool ScreenWatch::waitFor(Owner owner, ScreenCondition condition, std::uint64_t since, std::chrono::milliseconds limit,
                          Then then)
{
    const Time deadline = steady_clock::now() + limit;
    const auto wait =
        std::make_shared<Wait>(Wait{owner, std::move(condition), since, deadline, deadline, std::move(then)});
    const auto isOwners = [owner](const WaitPtr& each) { return each->owner == owner; };
    const std::lock_guard judging(mJudging);
    if (std::ranges::count_if(mWaits, isOwners) + std::ranges::count_if(mPending, isOwners) >=
        static_cast<std::ptrdiff_t>(MOST_WAITS))
        return false;
    if (mHasEnded)
        return wait->then({}), true;
    ask(wait);
    attend();
    publishDeadline();
    return true;
}

/// Has the screen read for it.
void ScreenWatch::ask(const WaitPtr& wait)
{
    wait->patience = steady_clock::now() + mPatience;
    mPending.push_back(wait);
    mReader.read([this, wait](ScreenPtr screen) { bring({std::move(screen), wait}); });
}

void ScreenWatch::subscribe(Owner owner, std::uint64_t after, Listener listener)
{
    const std::lock_guard judging(mJudging);
    if (!mRemembered.empty() && mRemembered.back()->number > after)
        listener(mRemembered.back());
    mSubscribers[owner] = {after, std::move(listener)};
    attend();
}

void ScreenWatch::unsubscribe(Owner owner)
{
    const std::lock_guard judging(mJudging);
    mSubscribers.erase(owner);
    attend();
}

void ScreenWatch::leave(Owner owner)
{
    const auto isOwners = [owner](const WaitPtr& each) { return each->owner == owner; };
    const std::lock_guard judging(mJudging);
    mSubscribers.erase(owner);
    std::erase_if(mWaits, isOwners);
    std::erase_if(mPending, isOwners);
    attend();
}

void ScreenWatch::end()
{
    const std::lock_guard judging(mJudging);
    mHasEnded = true;
    for (auto* waits : {&mWaits, &mPending}) {
        for (const WaitPtr& wait : *waits)
            wait->then({});
        waits->clear();
    }
    mSubscribers.clear();
    attend();
}

void ScreenWatch::bring(News news)
{
    const std::lock_guard lock(mMutex);
    mNews.push_back(std::move(news));
    mBrought.notify_all();
}

void ScreenWatch::run()
{
    Lock lock(mMutex);
    while (!mStopping) {
        waitForNews(lock);
        const std::deque<News> brought = std::exchange(mNews, {});
        lock.unlock();
        {
            const std::lock_guard judging(mJudging);
            for (const News& news : brought)
                handle(news);
            dropLapsed();
            attend();
            publishDeadline();
        }
        lock.lock();
    }
}

void ScreenWatch::waitForNews(Lock& lock)
{
    while (mNews.empty() && !mStopping && steady_clock::now() < mNextDeadline)
        mBrought.wait_until(lock, std::min(mNextDeadline, steady_clock::now() + LONGEST_SLEEP));
}

void ScreenWatch::handle(const News& news)
{
    if (news.askedBy != nullptr)
        begin(news.askedBy, news.screen);
    else
        changed(news.screen);
}

void ScreenWatch::changed(const ScreenPtr& screen)
{
    mRemembered.push_back(screen);
    if (mRemembered.size() > REMEMBERED)
        mRemembered.pop_front();
    std::erase_if(mWaits, [&](const WaitPtr& wait) { return judge(*wait, screen); });
    for (const auto& [owner, subscriber] : mSubscribers)
        if (screen->number > subscriber.after)
            subscriber.listener(screen);
}

/// A screen that it has asked for is there: what it has missed comes first. Null where none could be read.
void ScreenWatch::begin(const WaitPtr& wait, const ScreenPtr& screen)
{
    if (std::erase(mPending, wait) == 0)
        return;
    if (screen == nullptr)
        return wait->then({mReader.isThere() ? End::LAPSED : End::GONE, nullptr, UNREAD});
    if (wait->since != 0)
        for (const ScreenPtr& each : mRemembered)
            if (each->number < screen->number && judge(*wait, each))
                return;
    wait->since = std::max(wait->since, screen->number);
    if (judge(*wait, screen))
        return;
    if (wait->deadline <= steady_clock::now())
        return wait->then({End::LAPSED, screen, wait->condition.differenceOf(*screen)});
    mWaits.push_back(wait);
}

/// Whether waiting has ended with it.
bool ScreenWatch::judge(const Wait& wait, const ScreenPtr& screen) const
{
    if (screen->number < wait.since || !wait.condition.differenceOf(*screen).empty())
        return false;
    wait.then({End::HELD, screen, {}});
    return true;
}

/// Who has waited in vain is shown the screen once more: what changes without a frame is not told of.
void ScreenWatch::dropLapsed()
{
    const auto now = steady_clock::now();
    std::erase_if(mPending, [&](const WaitPtr& wait) {
        return wait->patience <= now && (wait->then({End::LAPSED, nullptr, UNREAD}), true);
    });
    std::erase_if(mWaits, [&](const WaitPtr& wait) { return wait->deadline <= now && (ask(wait), true); });
}

void ScreenWatch::publishDeadline()
{
    Time next = Time::max();
    for (const WaitPtr& wait : mWaits)
        next = std::min(next, wait->deadline);
    for (const WaitPtr& wait : mPending)
        next = std::min(next, wait->patience);
    const std::lock_guard lock(mMutex);
    mNextDeadline = next;
    mBrought.notify_all();
}

/// While somebody looks, the loop paints as soon as it has nothing else to do.
void ScreenWatch::attend()
{
    const bool isWanted = !mWaits.empty() || !mPending.empty() || !mSubscribers.empty();
    if (isWanted != (mAttention != nullptr))
        mAttention = isWanted ? std::make_unique<host::LoopAttention>() : nullptr;
}

} // namespace simulator
