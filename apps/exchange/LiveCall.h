#pragma once

#include "apps/exchange/Numbers.h"
#include "apps/exchange/Schedule.h"

#include <memory>
#include <optional>
#include <string>

namespace exchange {

/// What an event says beside the call's own.
struct Circumstances {
    Reason reason = Reason::NONE;
    std::string text = {};
    Party to = {};
    CallId with = NO_CALL;
};

/// A call that is not over, as the switchboard keeps it.
struct LiveCall {
    enum class Stage { SETTING_UP, RINGING, INCOMING, TALK, TRANSFERRING };

    CallEvent event; ///< the last one told
    Stage stage = Stage::SETTING_UP;
    bool isHeldByMe = false;
    bool isHeldByOther = false;
    bool isResuming = false;
    bool rang = false;                               ///< TRANSFERRING: it was RINGING before
    CallId partner = NO_CALL;                        ///< in my conference
    Party joined = {};                               ///< in the other one's conference
    std::shared_ptr<const Behaviour> behaviour = {}; ///< never null once it rings
    std::size_t talkStep = 0;
    std::string dialled = {}; ///< who calls back once it has ended; nobody where it has been transferred
    std::string target = {};  ///< where it goes when it is passed on
    int hops = 0;
    std::int64_t givesUpAt = 0;                 ///< INCOMING: when who calls loses patience
    Circumstances left = {};                    ///< TRANSFERRING to another call: why that has ended
    std::optional<std::int64_t> remaining = {}; ///< TRANSFERRING: what was left of his next step
    CallId partnerBefore = NO_CALL;             ///< TRANSFERRING: in my conference
    Party joinedBefore = {};                    ///< TRANSFERRING: in the other one's
    Schedule::Ticket mine = {};                 ///< what the exchange does for me
    Schedule::Ticket theirs = {};               ///< what the other one does next
};

/// Who calls here.
struct Caller {
    Party who;
    Party forwardedBy = {};
    std::optional<std::int64_t> patience = {}; ///< milliseconds until he gives up
    int hops = 0;                              ///< of the telephone's own lines
};

} // namespace exchange
