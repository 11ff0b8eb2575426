#pragma once

#include "apps/exchange/Telephony.h"

#include <atomic>
#include <string>
#include <vector>

namespace deskphone {

/// The telephone's own lines, and which of them calls go out on. Safe from any thread.
class OwnLines {
public:
    /// `telephony` has one at least, and outlives it.
    explicit OwnLines(const exchange::Telephony& telephony) : mTelephony(telephony) {}

    std::vector<exchange::Line> all() const { return mTelephony.lines(); }

    /// What is known of it now. REQUIRES: there is such a line.
    exchange::Line find(exchange::LineNumber line) const;

    /// Which one the user wants to call from. At first the first one.
    void choose(exchange::LineNumber line) { mChosen = line; }

    /// The one that calls go out on: the chosen one, or the first one that is registered while that one is not. Where
    /// none is, it is the chosen one.
    exchange::Line outgoing() const;

private:
    const exchange::Telephony& mTelephony;
    std::atomic<exchange::LineNumber> mChosen{1};
};

/// Whether calls that the line sends on to that number come back to it, and so ring nowhere.
bool comesBack(const std::vector<exchange::Line>& lines, exchange::LineNumber line, const std::string& number);

} // namespace deskphone
