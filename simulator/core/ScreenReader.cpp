#include "simulator/core/ScreenReader.h"

#include "host/toolkit/Loop.h"
#include "host/toolkit/MainQueue.h"

#include <future>
#include <utility>

namespace simulator {

namespace {

constexpr std::uint16_t READ = 0x5C01;
constexpr std::uint16_t LOOK = 0x5C02;
constexpr std::uint16_t PHOTOGRAPH = 0x5C03;

} // namespace

ScreenReader::ScreenReader(host::Lcd& lcd, std::function<ScreenWords()> ask) : mLcd(lcd), mAsk(std::move(ask)) {}

void ScreenReader::read(Then then)
{
    ask(READ, std::move(then));
}

ScreenPtr ScreenReader::atHand() const
{
    std::unique_lock lock(mMutex);
    const ScreenPtr screen = mIsThere ? mLast : nullptr;
    const std::uint64_t begun = mLastBegun;
    lock.unlock();
    return screen != nullptr && host::Loop::isIdleSince(begun) ? screen : nullptr;
}

ScreenPtr ScreenReader::read(std::chrono::milliseconds limit)
{
    if (ScreenPtr screen = atHand())
        return screen;
    return waitFor(READ, limit);
}

ScreenPtr ScreenReader::photograph(std::chrono::milliseconds limit)
{
    return waitFor(PHOTOGRAPH, limit);
}

void ScreenReader::ask(std::uint16_t message, Then then)
{
    std::int32_t ticket = 0;
    if (!want(ticket, then))
        return then(nullptr);
    if (host::MainQueue::push({message, ticket, this}))
        return;
    if (const Then unheard = take(ticket))
        unheard(nullptr);
}

ScreenPtr ScreenReader::waitFor(std::uint16_t message, std::chrono::milliseconds limit)
{
    const auto answer = std::make_shared<std::promise<ScreenPtr>>();
    std::future<ScreenPtr> screen = answer->get_future();
    ask(message, [answer](ScreenPtr read) { answer->set_value(std::move(read)); });
    return screen.wait_for(limit) == std::future_status::ready ? screen.get() : nullptr;
}

void ScreenReader::frameReady()
{
    {
        const std::lock_guard lock(mMutex);
        if (!mListener || mIsLookQueued)
            return;
        mIsLookQueued = true;
    }
    if (!host::MainQueue::push({LOOK, 0, this}))
        lookIsQueued(false);
}

void ScreenReader::setListener(Then listener)
{
    const std::lock_guard telling(mTelling);
    const std::lock_guard lock(mMutex);
    mListener = std::move(listener);
    mIsLookQueued = false;
}

void ScreenReader::leave()
{
    Wanted unheard;
    {
        const std::lock_guard lock(mMutex);
        mIsThere = false;
        unheard.swap(mWanted);
    }
    for (const auto& [ticket, then] : unheard)
        then(nullptr);
}

bool ScreenReader::isThere() const
{
    const std::lock_guard lock(mMutex);
    return mIsThere;
}

int ScreenReader::Message(const PegMessage& message)
{
    const bool isAskedFor = message.wType == READ || message.wType == PHOTOGRAPH;
    if (!isAskedFor && message.wType != LOOK)
        return PegThing::Message(message);
    const ScreenPtr screen = look();
    if (const Then then = isAskedFor ? take(message.iData) : Then())
        then(message.wType == PHOTOGRAPH ? withPixels(screen) : screen);
    return 0;
}

/// Takes it where the telephone is there.
bool ScreenReader::want(std::int32_t& ticket, Then& then)
{
    const std::lock_guard lock(mMutex);
    ticket = static_cast<std::int32_t>(++mLastTicket);
    if (mIsThere)
        mWanted[ticket] = std::move(then);
    return mIsThere;
}

/// Empty where he has heard already that nothing comes.
ScreenReader::Then ScreenReader::take(std::int32_t ticket)
{
    const std::lock_guard lock(mMutex);
    const auto wanted = mWanted.extract(ticket);
    return wanted ? std::move(wanted.mapped()) : Then();
}

/// The panel shows what the program says only when it has been painted.
ScreenPtr ScreenReader::look()
{
    lookIsQueued(true); // the frame that is painted now is looked at below
    mLcd.paint();
    lookIsQueued(false);
    return numbered({0, mAsk(), mLcd.reading()});
}

/// Nothing has changed since: this is the GUI thread.
ScreenPtr ScreenReader::withPixels(const ScreenPtr& screen)
{
    return std::make_shared<const Screen>(Screen{screen->number, screen->words, mLcd.picture()});
}

void ScreenReader::lookIsQueued(bool queued)
{
    const std::lock_guard lock(mMutex);
    mIsLookQueued = queued;
}

ScreenPtr ScreenReader::numbered(Screen screen)
{
    const std::lock_guard telling(mTelling);
    std::unique_lock lock(mMutex);
    mLastBegun = host::Loop::begun();
    if (mLast != nullptr && screen.readsAs(*mLast))
        return mLast;
    screen.number = mLast != nullptr ? mLast->number + 1 : 1;
    mLast = std::make_shared<const Screen>(std::move(screen));
    const ScreenPtr read = mLast;
    const Then listener = mListener;
    lock.unlock();
    if (listener)
        listener(read);
    return read;
}

} // namespace simulator
