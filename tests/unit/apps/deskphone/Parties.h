#pragma once

#include "unit/exchange/StandingClock.h"

#include "apps/exchange/Exchange.h"

#include <gmock/gmock.h>

#include <string>

namespace test {

/// An exchange with two lines and four who do as they are told, on a clock of the test's; and a telephone on it.
class Parties {
public:
    Parties() = default;
    Parties(const Parties&) = delete;
    Parties& operator=(const Parties&) = delete;
    virtual ~Parties() = default;

    /// Waits until the telephone has taken in all that has happened.
    virtual void settle() = 0;

    /// As the user has it done.
    virtual exchange::CallId place(exchange::LineNumber line, const exchange::Party& party) = 0;

    /// Lets time pass until all that is due has become true.
    void pass(std::int64_t milliseconds)
    {
        clock.pass(milliseconds);
        settle();
    }

    void say(const std::string& sentence) { EXPECT_EQ(exchange.command(sentence), ""); }

    StandingClock clock;
    exchange::Exchange exchange{exchange::Numbers::parse("numbers", "line 1 is 3301\n"
                                                                    "line 2 is 3302\n"
                                                                    "4710 \"Ada\" never answers\n"
                                                                    "4711 \"Bert\" never answers\n"
                                                                    "4712 \"Cleo\" never answers\n"
                                                                    "4713 \"Dora\" never answers\n"),
                                clock};
};

} // namespace test
