#include "host/input/Keyboard.h"

#include "host/toolkit/MainQueue.h"

#include <array>
#include <charconv>
#include <utility>

namespace host {

namespace {

constexpr std::array<std::pair<std::string_view, PegKey>, 10> NAMED_KEYS{{
    {"up", PK_UP},
    {"down", PK_DOWN},
    {"left", PK_LEFT},
    {"right", PK_RIGHT},
    {"ok", PK_OK},
    {"star", PK_STAR},
    {"hash", PK_HASH},
    {"volume-up", PK_VOLUME_UP},
    {"volume-down", PK_VOLUME_DOWN},
    {"hook", PK_HOOK},
}};

constexpr std::string_view PROGRAMMABLE = "fpk";

/// "fpk1" and on.
std::optional<PegKey> programmableKey(std::string_view name)
{
    int number = 0;
    const char* const last = name.data() + name.size();
    if (!name.starts_with(PROGRAMMABLE) || name.substr(PROGRAMMABLE.size()).starts_with('0'))
        return {};
    const auto [end, error] = std::from_chars(name.data() + PROGRAMMABLE.size(), last, number);
    if (error != std::errc() || end != last || number < 1 || number > PK_FPK_LAST - PK_FPK1 + 1)
        return {};
    return static_cast<PegKey>(PK_FPK1 + number - 1);
}

} // namespace

Keyboard& Keyboard::instance()
{
    static Keyboard keyboard;
    return keyboard;
}

std::optional<PegKey> Keyboard::keyFromName(std::string_view name)
{
    if (name.size() == 1 && name[0] >= '0' && name[0] <= '9')
        return static_cast<PegKey>(name[0]);
    for (const auto& [known, key] : NAMED_KEYS)
        if (known == name)
            return key;
    return programmableKey(name);
}

std::string Keyboard::nameOf(PegKey key)
{
    for (const auto& [name, known] : NAMED_KEYS)
        if (known == key)
            return std::string(name);
    if (key >= PK_FPK1 && key <= PK_FPK_LAST)
        return std::string(PROGRAMMABLE) + std::to_string(key - PK_FPK1 + 1);
    return {static_cast<char>(key)};
}

bool Keyboard::press(PegKey key)
{
    return send(PM_KEY, key);
}

bool Keyboard::release(PegKey key)
{
    return send(PM_KEYRELEASE, key);
}

bool Keyboard::send(std::uint16_t type, PegKey key)
{
    if (mPending.fetch_add(1) < MAX_PENDING && MainQueue::push({type, key}))
        return true;
    --mPending;
    return false;
}

void Keyboard::setHookListener(std::function<void()> listener)
{
    const std::lock_guard lock(mMutex);
    mHookListener = std::move(listener);
}

void Keyboard::comes(const PegMessage& message)
{
    if (mWitness != nullptr)
        mWitness->keyComes(message);
}

void Keyboard::handled(const PegMessage& message)
{
    --mPending;
    if (mWitness != nullptr)
        mWitness->keyIsHandled(message);
    if (message.wType != PM_KEY || message.iData != PK_HOOK)
        return;
    const std::lock_guard lock(mMutex);
    if (mHookListener)
        mHookListener();
}

void Keyboard::connect()
{
    mPending = 0;
}

void Keyboard::disconnect()
{
    mPending = DISCONNECTED;
}

} // namespace host
