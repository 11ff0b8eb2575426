#pragma once

#include "apps/exchange/Exchange.h"
#include "apps/exchange/ExchangeWire.h"
#include "apps/exchange/HostClock.h"

#include <string>

namespace deskphone {

class ContactBook;

/// The exchange that the desk phone begins with.
extern const std::string USUAL_NUMBERS;

/// What the desk phone is connected to: an exchange in this process, on the host's clock, with the numbers of a file
/// and everybody else whom the user knows, who answers after a while; within reach of scripts, and the file's numbers
/// of the page. What is wrong in the file is told on stderr.
class Network {
public:
    /// `contacts` outlive it.
    Network(const std::string& numbers, const ContactBook& contacts);

    exchange::Exchange& telephony() { return mExchange; }

private:
    exchange::HostClock mClock;
    exchange::Exchange mExchange;
    exchange::ExchangeWire mWire;
};

} // namespace deskphone
