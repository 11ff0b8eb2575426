#include "apps/exchange/Exchange.h"

#include "apps/exchange/Switchboard.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace exchange {

class Exchange::Impl {
public:
    Impl(Numbers numbers, Clock& clock)
        : mClock(clock), mSchedule(clock.now()), mSwitchboard(std::move(numbers), mSchedule, mHappenings),
          mThread([this] { run(); })
    {
    }

    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    /// Does it now, after what is due, and lets the thread see what has come of it.
    template <typename Work>
    auto change(Work work)
    {
        const WakeUp wakeUp{*this};
        const std::lock_guard lock(mMutex);
        mSchedule.runUntil(mClock.now());
        return work(mSwitchboard);
    }

    ~Impl()
    {
        change([this](Switchboard&) { mIsOver = true; });
        mThread.join();
    }

    template <typename Question>
    auto ask(Question question)
    {
        const std::lock_guard lock(mMutex);
        return question(mSwitchboard);
    }

    void setListener(TelephonyListener* listener)
    {
        const std::uint64_t begun = change([=, this](Switchboard& board) {
            mListener = listener;
            mHappenings.clear();
            board.tellAll();
            mHeard.notify_all();
            return mBegun;
        });
        std::unique_lock lock(mMutex);
        if (!isOwnThread())
            mHeard.wait(lock, [=, this] { return mHeardOut >= begun; });
    }

    void waitUntilHeard()
    {
        change([](Switchboard&) {});
        std::unique_lock lock(mMutex);
        mHeard.wait(lock, [this] { return mHeardOut == mBegun && mHappenings.empty(); });
    }

private:
    /// Wakes the thread when it goes, without the lock. The thread itself is awake.
    struct WakeUp {
        Impl& impl;
        ~WakeUp()
        {
            if (!impl.isOwnThread())
                impl.mClock.wake();
        }
    };

    bool isOwnThread() const { return std::this_thread::get_id() == mThread.get_id(); }

    void run()
    {
        std::unique_lock lock(mMutex);
        while (!mIsOver) {
            mSchedule.runUntil(mClock.now());
            if (mListener == nullptr)
                forgetAll();
            if (!mHappenings.empty()) {
                tellNext(lock);
                continue;
            }
            const std::int64_t due = mSchedule.nextDue();
            lock.unlock();
            mClock.sleepUntil(due);
            lock.lock();
        }
    }

    void forgetAll()
    {
        mHappenings.clear();
        mHeard.notify_all();
    }

    /// REQUIRES: there is a listener.
    void tellNext(std::unique_lock<std::mutex>& lock)
    {
        const Happening happening = std::move(mHappenings.front());
        mHappenings.pop_front();
        TelephonyListener& listener = *mListener;
        ++mBegun;
        lock.unlock();
        tell(listener, happening);
        lock.lock();
        ++mHeardOut;
        mHeard.notify_all();
    }

    static void tell(TelephonyListener& listener, const Happening& happening)
    {
        if (const CallEvent* const event = std::get_if<CallEvent>(&happening))
            listener.callChanged(*event);
        if (const Line* const line = std::get_if<Line>(&happening))
            listener.lineChanged(*line);
    }

    Clock& mClock;
    std::mutex mMutex; ///< guards what follows
    std::condition_variable mHeard;
    std::deque<Happening> mHappenings; ///< not heard yet
    Schedule mSchedule;
    Switchboard mSwitchboard;
    TelephonyListener* mListener = nullptr;
    std::uint64_t mBegun = 0;    ///< how many times a listener has begun to hear
    std::uint64_t mHeardOut = 0; ///< how many times it has returned
    bool mIsOver = false;
    std::thread mThread;
};

Exchange::Exchange(Numbers numbers, Clock& clock) : mImpl(std::make_unique<Impl>(std::move(numbers), clock)) {}

Exchange::~Exchange() = default;

void Exchange::setListener(TelephonyListener* listener)
{
    mImpl->setListener(listener);
}

void Exchange::waitUntilHeard()
{
    mImpl->waitUntilHeard();
}

std::vector<Line> Exchange::lines() const
{
    return mImpl->ask([](const Switchboard& board) { return board.lines(); });
}

CallId Exchange::place(LineNumber line, const std::string& number)
{
    return mImpl->change([&](Switchboard& board) { return board.place(line, number); });
}

bool Exchange::answer(CallId call)
{
    return mImpl->change([=](Switchboard& board) { return board.answer(call); });
}

bool Exchange::deflect(CallId call, const std::string& number)
{
    return mImpl->change([&](Switchboard& board) { return board.deflect(call, number); });
}

bool Exchange::end(CallId call)
{
    return mImpl->change([=](Switchboard& board) { return board.end(call); });
}

bool Exchange::hold(CallId call)
{
    return mImpl->change([=](Switchboard& board) { return board.hold(call); });
}

bool Exchange::resume(CallId call)
{
    return mImpl->change([=](Switchboard& board) { return board.resume(call); });
}

bool Exchange::transferTo(CallId call, const std::string& number)
{
    return mImpl->change([&](Switchboard& board) { return board.transferTo(call, number); });
}

bool Exchange::transfer(CallId call, CallId consulted)
{
    return mImpl->change([=](Switchboard& board) { return board.transfer(call, consulted); });
}

bool Exchange::join(CallId call, CallId other)
{
    return mImpl->change([=](Switchboard& board) { return board.join(call, other); });
}

bool Exchange::setForwarding(LineNumber line, const Forwarding& forwarding)
{
    const auto forward = [&](Line& changed) { changed.forwarding = forwarding; };
    return forwarding.answerTime >= 0 && forwarding.answerTime <= LONGEST_TIME &&
           mImpl->change([&](Switchboard& board) { return board.changeLine(line, forward); });
}

bool Exchange::setDoNotDisturb(LineNumber line, bool on)
{
    const auto set = [on](Line& changed) { changed.doNotDisturb = on; };
    return mImpl->change([&](Switchboard& board) { return board.changeLine(line, set); });
}

bool Exchange::setTakesSeveral(LineNumber line, bool on)
{
    const auto set = [on](Line& changed) { changed.takesSeveral = on; };
    return mImpl->change([&](Switchboard& board) { return board.changeLine(line, set); });
}

std::string Exchange::command(std::string_view line)
{
    try {
        const Sentence sentence = parseSentence(line, Occasion::AT_RUN_TIME);
        mImpl->change([&](Switchboard& board) { board.follow(sentence); });
    } catch (const Mistake& mistake) {
        return mistake.what();
    }
    return {};
}

std::vector<Party> Exchange::parties() const
{
    return mImpl->ask([](const Switchboard& board) { return board.parties(); });
}

} // namespace exchange
