#pragma once

#include "apps/exchange/Call.h"

#include <cstdint>
#include <ctime>
#include <string>

namespace deskphone {

/// A call that is over, or was never answered.
struct PastCall {
    enum class Kind { MISSED, RECEIVED, DIALLED, FORWARDED };

    Kind kind;
    std::time_t moment; ///< of its begin
    std::string party;  ///< a name, or the number where there is none; empty where nobody knows
    std::string number;
    int seconds = 0;        ///< that it was spoken; 0 where it was not
    std::string other = {}; ///< FORWARDED, DIALLED: who got it instead; else who has forwarded it; or nobody
    int line = 0;           ///< of the telephone's; 0 where nobody knows
    bool isForgotten = false;
    bool isSeen = false;
    std::int64_t id = 0;                              ///< in the file that keeps it
    exchange::Reason reason = exchange::Reason::NONE; ///< why it is over; no file keeps it

    bool isNewMissedCall() const { return kind == Kind::MISSED && !isForgotten && !isSeen; }
};

} // namespace deskphone
