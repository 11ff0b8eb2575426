#pragma once

#include "host/input/Workplace.h"
#include "host/lcd/Lcd.h"
#include "simulator/core/ScreenCondition.h"
#include "toolkit/PegMessage.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// What a script does to a telephone. Each call is bounded in real time.
class ScriptedPhone {
public:
    virtual ~ScriptedPhone() = default;

    /// False when the telephone does not take the key.
    virtual bool press(PegKey key) = 0;
    virtual bool release(PegKey key) = 0;

    /// Lets that much time pass on the telephone's clock: a real one goes by itself, a virtual one is moved second by
    /// second.
    virtual void pass(std::int64_t milliseconds) = 0;

    /// Moves the virtual clock in one go: hours cost little. False when the clock is not virtual.
    virtual bool advance(std::int64_t milliseconds) = 0;

    /// Waits until nothing moves any more: neither the loop nor the application's threads, which run in real time.
    /// False when the loop does not come to rest. `standsStill` is called once if the GUI thread has meanwhile been at
    /// one thing for so long that somebody at the keys would wonder.
    virtual bool settle(const std::function<void()>& standsStill) = 0;

    /// Says a line to the program. Returns the sentence that says why nothing comes of it; empty when all is well.
    virtual std::string say(const std::string& wire, const std::string& line) = 0;

    /// What the keys work on, and what of it is one of the texts; nothing where the GUI thread does not come to it.
    virtual std::optional<host::Workplace> workplace(const std::vector<std::string>& wanted) = 0;

    /// Has the text in what is typed into.
    virtual host::Workplace::Typed type(const std::string& text) = 0;

    /// What the program's language has for the key; the key where it has nothing.
    virtual std::string translate(const std::string& key) = 0;

    /// Lets so much real time pass.
    virtual void rest(std::chrono::milliseconds time) = 0;

    /// The panel as it is now, whatever the GUI thread is about.
    virtual host::Picture picture() = 0;

    /// The screen between two messages; null where the GUI thread does not come to it, or the telephone has gone.
    virtual ScreenPtr screen() = 0;

    /// Waits until the condition holds, judged at every screen, at most `limit` of real time. Returns what differs in
    /// the last one; nothing where it has held.
    virtual std::optional<std::string> waitFor(const ScreenCondition& condition, std::chrono::milliseconds limit) = 0;

    /// False once the telephone is going down.
    virtual bool isThere() = 0;
};

} // namespace simulator
