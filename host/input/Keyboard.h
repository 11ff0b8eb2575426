#pragma once

#include "toolkit/PegMessage.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// The telephone's keys: turns presses from a front end into messages for the thing that has the focus.
/// Safe from any thread.
class Keyboard {
public:
    static Keyboard& instance();

    /// "up", "down", "left", "right", "ok", "0" to "9", "star", "hash", "volume-up", "volume-down", "hook", and "fpk1"
    /// to "fpk16".
    static std::optional<PegKey> keyFromName(std::string_view name);

    /// Its inverse. REQUIRES: it is one of these.
    static std::string nameOf(PegKey key);

    /// Queues the message. Returns false, and drops the key, while MAX_PENDING keys wait to be handled or the toolkit
    /// is not running: a flood of keys costs the application nothing.
    bool press(PegKey key);
    bool release(PegKey key);

    /// Told on the GUI thread each time that the hook key is handled, whatever has the focus: the handset is of no
    /// screen. Must not block. An empty function removes it; none is called once this has returned.
    void setHookListener(std::function<void()> listener);

    /// Whoever wants to know what the keys work on, on the GUI thread; must not block.
    class Witness {
    public:
        /// A key, PM_KEY or PM_KEYRELEASE, is about to be handled; and has been.
        virtual void keyComes(const PegMessage& message) = 0;
        virtual void keyIsHandled(const PegMessage& message) = 0;

    protected:
        ~Witness() = default;
    };

    /// Not owned; null is nobody. GUI thread only.
    void setWitness(Witness* witness) { mWitness = witness; }

    /// Called by the loop before it handles a key message, and when it has.
    void comes(const PegMessage& message);
    void handled(const PegMessage& message);

    /// Called by the toolkit when it has started, and before it stops.
    void connect();
    void disconnect();

    static constexpr int MAX_PENDING = 64;

private:
    bool send(std::uint16_t type, PegKey key);

    std::mutex mMutex; ///< guards what follows; a leaf, but for what the listener takes
    std::function<void()> mHookListener;
    Witness* mWitness = nullptr; ///< the GUI thread's alone
    static constexpr int DISCONNECTED = MAX_PENDING;
    std::atomic<int> mPending{DISCONNECTED}; ///< full while the toolkit does not run
};

} // namespace host
