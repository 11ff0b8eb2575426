#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace exchange {

/// Never used twice in the life of an exchange, and never 0.
using CallId = int;
inline constexpr CallId NO_CALL = 0;

/// Lines count from 1.
using LineNumber = int;

struct Party {
    std::string number; ///< empty: nobody
    std::string name;   ///< UTF-8; empty where it is not known

    bool operator==(const Party&) const = default;
};

/// Seen from this telephone.
enum class Direction { OUTGOING, INCOMING };

/// What a call is about. The last three are final: no event of the call comes after them.
enum class CallState {
    DIALLING,      ///< the number is on its way
    PROCEEDING,    ///< the exchange looks for the other one
    RINGING_BACK,  ///< it rings there
    INCOMING,      ///< it rings here
    CONNECTED,     ///< one speaks
    HELD_BY_ME,    ///< until resume()
    HELD_BY_OTHER, ///< until the other one resumes
    HELD_BY_BOTH,  ///< until both have resumed
    RESUMING,      ///< resume() is on its way; what comes of it is the next event
    TRANSFERRING,  ///< a transfer is under way, by me or by the other one; the call may come back
    CONFERENCE,    ///< one speaks with two others
    FORWARDED,     ///< has gone on to `to` instead of ringing, or after it has rung
    ENDED,         ///< see `reason`
    FAILED,        ///< see `reason` and `text`
};

enum class Reason {
    NONE,
    ENDED_BY_ME,
    ENDED_BY_OTHER,
    BUSY,           ///< the one who was called is
    NO_ANSWER,      ///< it has rung for too long, or who called has given up
    REJECTED,       ///< by the one who was called
    DO_NOT_DISTURB, ///< here
    TRANSFERRED,    ///< ENDED: the other ones speak with each other now
    UNKNOWN_NUMBER,
    NOT_REGISTERED, ///< the line
    FAILURE,        ///< `text` says which
};

/// A call after something has changed. It stands for itself: who keeps the last one of each call knows all calls.
struct CallEvent {
    CallId call = NO_CALL;
    LineNumber line = 0;
    Direction direction = Direction::OUTGOING;
    CallState state = CallState::DIALLING;
    Party other;            ///< who is called, who calls, with whom one speaks
    Party forwardedBy = {}; ///< who was called first, or who has transferred me; nobody's number where there is none
    Party to = {};          ///< FORWARDED, TRANSFERRING: where it goes; CONFERENCE that the other one made: who joined
    CallId with = NO_CALL;  ///< in a conference of mine, and TRANSFERRING of one call to another: the other call
    Reason reason = Reason::NONE; ///< also why a transfer or a resuming has come to nothing
    std::string text = {};        ///< FAILURE: for the user, UTF-8
    std::int64_t at = 0;          ///< milliseconds on the exchange's clock

    bool operator==(const CallEvent&) const = default;
};

/// FORWARDED, ENDED and FAILED.
bool isFinal(CallState state);

/// Connected, held by whomever, resuming, or in a conference.
bool isTalk(CallState state);

/// "held by me", "no answer": for tests and logs.
std::string_view nameOf(CallState state);
std::string_view nameOf(Reason reason);

} // namespace exchange
