#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Ear.h"
#include "kit/Fence.h"
#include "unit/apps/deskphone/Parties.h"

#include <functional>

namespace test {

/// The telephone's calls without a screen.
class CallsFixture : public Parties {
public:
    CallsFixture() { calls.startListening(); }
    ~CallsFixture() override { calls.stopListening(); }

    void settle() override
    {
        exchange.waitUntilHeard();
        DisplayAPI::kit::Fence().wait();
    }

    /// Does it on a thread that answers the user, on which the calls become true, and waits for it.
    static void asUser(const std::function<void()>& work)
    {
        deskphone::Ear user([&](DisplayAPI::Command*) { work(); });
        user.postCommandAction(nullptr, nullptr);
        DisplayAPI::kit::Fence().wait();
    }

    exchange::CallId place(exchange::LineNumber line, const exchange::Party& party) override
    {
        exchange::CallId call = exchange::NO_CALL;
        asUser([&] { call = calls.place(line, party); });
        return call;
    }

    deskphone::Calls calls{exchange};
};

} // namespace test
