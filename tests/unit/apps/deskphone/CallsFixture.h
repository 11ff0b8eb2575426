#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Ear.h"
#include "kit/Fence.h"
#include "unit/apps/deskphone/Parties.h"

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

    /// On a thread that answers the user, on which the calls become true.
    exchange::CallId place(exchange::LineNumber line, const exchange::Party& party) override
    {
        exchange::CallId call = exchange::NO_CALL;
        deskphone::Ear user([&](DisplayAPI::Command*) { call = calls.place(line, party); });
        user.postCommandAction(nullptr, nullptr);
        DisplayAPI::kit::Fence().wait();
        return call;
    }

    deskphone::Calls calls{exchange};
};

} // namespace test
