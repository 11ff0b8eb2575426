#include "host/input/KeyLamps.h"

#include <mutex>

namespace host {

namespace {

// Never destroyed: a row may go as late as at process exit.

struct Rows {
    std::mutex mutex;
    std::vector<const std::vector<bool>*> rows;
    std::function<void()> listener;
};

Rows& all()
{
    static auto* const rows = new Rows;
    return *rows;
}

/// The listener is told without the lock.
template <typename Change>
void change(Change apply)
{
    std::function<void()> listener;
    {
        const std::lock_guard lock(all().mutex);
        apply();
        listener = all().listener;
    }
    if (listener)
        listener();
}

} // namespace

KeyLamps::KeyLamps(int keys) : mLit(static_cast<std::size_t>(keys))
{
    change([this] { all().rows.push_back(&mLit); });
}

KeyLamps::~KeyLamps()
{
    change([this] { std::erase(all().rows, &mLit); });
}

bool KeyLamps::isLit(int key) const
{
    return mLit[static_cast<std::size_t>(key)];
}

void KeyLamps::light(int key, bool on)
{
    if (isLit(key) != on)
        change([=, this] { mLit[static_cast<std::size_t>(key)] = on; });
}

std::vector<bool> KeyLamps::current()
{
    const std::lock_guard lock(all().mutex);
    return all().rows.empty() ? std::vector<bool>() : *all().rows.back();
}

void KeyLamps::setListener(std::function<void()> listener)
{
    const std::lock_guard lock(all().mutex);
    all().listener = std::move(listener);
}

} // namespace host
