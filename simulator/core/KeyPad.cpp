#include "simulator/core/KeyPad.h"

#include "host/clock/Clock.h"
#include "host/input/Keyboard.h"
#include "simulator/screen/KeyRepeatRule.h"

#include <algorithm>

namespace simulator {

namespace {

using std::chrono::steady_clock;

/// A release that is lost would leave the key down for ever: it is offered again until it is taken.
constexpr std::chrono::milliseconds RELEASE_AGAIN(20);

} // namespace

KeyPad::KeyPad() : mTimer([this] { runTimes(); }) {}

KeyPad::~KeyPad()
{
    {
        std::lock_guard lock(mMutex);
        mStopping = true;
    }
    mChanged.notify_all();
    mTimer.join();
}

bool KeyPad::down(Page page, PegKey key)
{
    std::lock_guard lock(mMutex);
    return take(page, key);
}

KeyPad::Press KeyPad::press(Page page, PegKey key)
{
    std::lock_guard lock(mMutex);
    if (isHeld(key))
        return Press::HELD;
    if (!host::Keyboard::instance().press(key))
        return Press::REFUSED;
    mHeld.insert({key, page});
    letGo(page, key);
    return Press::TAKEN;
}

/// REQUIRES: the lock is held.
bool KeyPad::take(Page page, PegKey key)
{
    const bool wasHeld = isHeld(key);
    if (!wasHeld && !host::Keyboard::instance().press(key))
        return false;
    mHeld.insert({key, page});
    if (wasHeld)
        return true;
    mReleases.erase(key);
    if (KeyRepeatRule::repeats(key) && !host::Clock::instance().isVirtual()) {
        mRepeats[key] = steady_clock::now() + KeyRepeatRule::DELAY;
        mChanged.notify_all();
    }
    return true;
}

void KeyPad::again(PegKey key)
{
    std::lock_guard lock(mMutex);
    if (isHeld(key))
        host::Keyboard::instance().press(key);
}

void KeyPad::up(Page page, PegKey key)
{
    std::lock_guard lock(mMutex);
    letGo(page, key);
}

void KeyPad::leave(Page page)
{
    std::lock_guard lock(mMutex);
    const auto held = mHeld;
    for (const auto& [key, holder] : held)
        if (holder == page)
            letGo(page, key);
}

void KeyPad::letGo(Page page, PegKey key)
{
    if (mHeld.erase({key, page}) == 0 || isHeld(key))
        return;
    mRepeats.erase(key);
    mReleases[key] = steady_clock::now();
    releaseWhatIsUp(steady_clock::now());
    if (!mReleases.empty())
        mChanged.notify_all();
}

bool KeyPad::isHeld(PegKey key) const
{
    const auto first = mHeld.lower_bound({key, nullptr});
    return first != mHeld.end() && first->first == key;
}

void KeyPad::runTimes()
{
    std::unique_lock lock(mMutex);
    while (!mStopping) {
        mChanged.wait_until(lock, nextTime());
        pressWhatIsDue(steady_clock::now());
        releaseWhatIsUp(steady_clock::now());
    }
}

KeyPad::Time KeyPad::nextTime() const
{
    Time next = steady_clock::now() + std::chrono::hours(1);
    for (const auto* times : {&mRepeats, &mReleases})
        for (const auto& [key, time] : *times)
            next = std::min(next, time);
    return next;
}

void KeyPad::pressWhatIsDue(Time now)
{
    for (auto& [key, time] : mRepeats) {
        if (time > now)
            continue;
        host::Keyboard::instance().press(key);
        time = now + KeyRepeatRule::INTERVAL;
    }
}

void KeyPad::releaseWhatIsUp(Time now)
{
    for (auto entry = mReleases.begin(); entry != mReleases.end();) {
        const bool isDue = entry->second <= now;
        if (isDue && host::Keyboard::instance().release(entry->first)) {
            entry = mReleases.erase(entry);
            continue;
        }
        if (isDue)
            entry->second = now + RELEASE_AGAIN;
        ++entry;
    }
}

} // namespace simulator
