#pragma once

#include "apps/exchange/Clock.h"
#include "apps/exchange/Numbers.h"
#include "apps/exchange/Telephony.h"

#include <memory>
#include <string>
#include <string_view>

namespace exchange {

/// An exchange in the process: a telephone's lines, and other parties who behave as Numbers says. docs/exchange.md
/// tells the language.
///
/// Threads: as Telephony says. All changes are made at the moment of the call, under one lock, which is a leaf and is
/// not held while a listener runs; what is due is made up for first, so that events keep the order of the clock however
/// late a thread is. A thread of its own delivers them and wakes for what comes later.
/// Ownership: the clock has to outlive the exchange, the listener to be taken off before it goes.
class Exchange final : public Telephony {
public:
    Exchange(Numbers numbers, Clock& clock);

    /// Waits until the listener returns. Not on a thread that it waits for.
    ~Exchange() override;

    void setListener(TelephonyListener* listener) override;
    void waitUntilHeard() override;
    std::vector<Line> lines() const override;
    CallId place(LineNumber line, const std::string& number) override;
    bool answer(CallId call) override;
    bool deflect(CallId call, const std::string& number) override;
    bool end(CallId call) override;
    bool hold(CallId call) override;
    bool resume(CallId call) override;
    bool transferTo(CallId call, const std::string& number) override;
    bool transfer(CallId call, CallId consulted) override;
    bool join(CallId call, CallId other) override;
    bool setForwarding(LineNumber line, const Forwarding& forwarding) override;
    bool setDoNotDisturb(LineNumber line, bool on) override;
    bool setTakesSeveral(LineNumber line, bool on) override;

    /// Has one line of the exchange's language done: "4711 calls", "4711 holds". Returns the sentence that says why it
    /// is not, and then changes nothing; empty when all is well.
    std::string command(std::string_view line);

    /// The numbers of the others, in the order of the file.
    std::vector<Party> parties() const;

private:
    class Impl;
    std::unique_ptr<Impl> mImpl;
};

} // namespace exchange
