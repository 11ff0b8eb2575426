#pragma once

#include "host/inspection/WidgetTree.h"
#include "simulator/core/KeyPad.h"
#include "simulator/core/PhoneClock.h"
#include "simulator/core/ScreenReader.h"

#include <functional>
#include <optional>

namespace simulator {

/// The telephone as clients have it: each operation waits until the GUI thread has come to it, and is an RpcError where
/// nothing comes of it. Safe from any thread but the GUI thread.
class RpcPhone {
public:
    /// Whatever tells one client from another: what it held is let go when it leaves.
    using Client = KeyPad::Page;

    /// They have to outlive it.
    RpcPhone(ScreenReader& reader, PhoneClock& clock, KeyPad& keys) : mReader(reader), mClock(clock), mKeys(keys) {}

    /// As it is when all that is queued by now has been handled.
    ScreenPtr screen();

    /// With the pixels.
    ScreenPtr photograph();

    /// What the screen consists of, when all that is queued by now has been handled. Nothing where the GUI thread
    /// stands still, or is gone.
    std::optional<host::WidgetTree> widgets();

    /// Presses a key and lets it go. Refused where somebody holds it.
    void press(Client client, PegKey key);

    void down(Client client, PegKey key);
    void up(Client client, PegKey key);

    /// For so long on the telephone's clock. What `again` throws, before it is pressed again, ends it with the key
    /// down.
    void hold(Client client, PegKey key, std::int64_t milliseconds, const std::function<void()>& again);

    void pass(std::int64_t milliseconds);

    /// Moves the virtual clock.
    void advance(std::int64_t milliseconds);

    /// Says a line to a wire of the program.
    void say(const std::string& wire, const std::string& line);
    void leave(Client client) { mKeys.leave(client); }

private:
    ScreenPtr orComplaint(ScreenPtr screen) const;

    ScreenReader& mReader;
    PhoneClock& mClock;
    KeyPad& mKeys;
};

} // namespace simulator
