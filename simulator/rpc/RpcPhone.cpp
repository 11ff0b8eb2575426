#include "simulator/rpc/RpcPhone.h"

#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/toolkit/Loop.h"
#include "simulator/core/HeldKey.h"
#include "simulator/rpc/RpcError.h"

#include <future>

namespace simulator {

namespace {

/// A GUI thread that does not come back by then stands still for good.
constexpr std::chrono::seconds PATIENCE(10);

constexpr char NOT_TAKEN[] = "the telephone does not take the key";

} // namespace

ScreenPtr RpcPhone::screen()
{
    return orComplaint(mReader.read(PATIENCE));
}

ScreenPtr RpcPhone::photograph()
{
    return orComplaint(mReader.photograph(PATIENCE));
}

ScreenPtr RpcPhone::orComplaint(ScreenPtr screen) const
{
    if (screen != nullptr)
        return screen;
    if (!mReader.isThere())
        throw RpcError(RpcError::HAS_ENDED, "the application has ended");
    throw RpcError(RpcError::NO_ANSWER, "the application does not answer: its GUI thread stands still");
}

std::optional<host::WidgetTree> RpcPhone::widgets()
{
    if (host::Loop::standsStill())
        return {};
    using Answer = std::promise<std::optional<host::WidgetTree>>;
    const auto answer = std::make_shared<Answer>(); // the GUI thread may come to it when nobody waits any more
    auto tree = answer->get_future();
    mReader.read([answer](const ScreenPtr& screen) {
        answer->set_value(screen != nullptr ? std::optional(host::WidgetTree::read()) : std::nullopt);
    });
    return tree.wait_for(host::Loop::STANDSTILL) == std::future_status::ready ? tree.get() : std::nullopt;
}

void RpcPhone::press(Client client, PegKey key)
{
    switch (mKeys.press(client, key)) {
    case KeyPad::Press::TAKEN: return;
    case KeyPad::Press::HELD: throw RpcError(RpcError::NOT_TAKEN, "the key is held down already");
    case KeyPad::Press::REFUSED: throw RpcError(RpcError::NOT_TAKEN, NOT_TAKEN);
    }
}

void RpcPhone::down(Client client, PegKey key)
{
    if (!mKeys.down(client, key))
        throw RpcError(RpcError::NOT_TAKEN, NOT_TAKEN);
}

void RpcPhone::up(Client client, PegKey key)
{
    mKeys.up(client, key);
}

/// A real clock's keys are pressed again by the key pad.
void RpcPhone::hold(Client client, PegKey key, std::int64_t milliseconds, const std::function<void()>& again)
{
    const bool isVirtual = host::Clock::instance().isVirtual();
    const auto pauses = isVirtual ? pausesOfHeld(key, milliseconds) : std::vector{milliseconds};
    down(client, key);
    pass(pauses.front());
    for (std::size_t i = 1; i < pauses.size(); ++i) {
        again();
        mKeys.again(key);
        pass(pauses[i]);
    }
    up(client, key);
}

void RpcPhone::advance(std::int64_t milliseconds)
{
    if (!mClock.advance(milliseconds))
        throw RpcError(RpcError::REAL_CLOCK, "the telephone's clock is not a virtual one");
}

void RpcPhone::say(const std::string& wire, const std::string& line)
{
    if (const std::string refusal = host::Wire::say(wire, line); !refusal.empty())
        throw RpcError(RpcError::REFUSED, refusal);
}

void RpcPhone::pass(std::int64_t milliseconds)
{
    mClock.pass(milliseconds);
}

} // namespace simulator
