#pragma once

#include "apps/exchange/Call.h"
#include "apps/exchange/Line.h"

#include <string>
#include <vector>

namespace exchange {

/// Hears what happens to calls and lines, on one thread of the telephony's own, one event after the other, in the order
/// in which they happened. It may take its time, wait for other threads, and call the telephony, which does not wait
/// for it: what happens meanwhile is kept for it.
class TelephonyListener {
public:
    virtual ~TelephonyListener() = default;

    /// Once for each change of a call's state or of its party.
    virtual void callChanged(const CallEvent& event) = 0;

    /// Once for each change of what the exchange knows of a line. By default nothing.
    virtual void lineChanged(const Line&) {}
};

/// What a telephone asks of the network: a simulated exchange, or a signalling stack in its place.
///
/// Threads: safe from any, the listener's included; nothing waits for the network. What has come of an operation is
/// told by events, on the listener's thread. To one that calls the operation itself they come once it has returned from
/// the event that it is hearing. To any other caller they may come before the operation returns: the listener can hear
/// DIALLING of a call whose id place() has not returned yet.
/// An operation on a call that is not in a state for it (it may just have ended) changes nothing and returns false.
/// Only one call is connected at a time, or one conference: place(), answer() and resume() hold it first.
class Telephony {
public:
    virtual ~Telephony() = default;

    /// Who hears the events from now on; null is nobody, and then events are dropped. A new listener hears the last
    /// event of each call that lives first, whoever has heard it before; the lines it asks for. Waits until the former
    /// one has returned from the event that it is hearing, and for nothing of the new one's; no other event comes to
    /// the former one any more. From the former one itself it does not wait. Not from a thread that the former one
    /// waits for.
    virtual void setListener(TelephonyListener* listener) = 0;

    /// Returns when everything that has happened by now has been heard. Not from the listener, nor from a thread that
    /// it waits for.
    virtual void waitUntilHeard() = 0;

    /// From 1 on.
    virtual std::vector<Line> lines() const = 0;

    /// Calls `number` from a line. NO_CALL where there is no such line or no number; what else is in the way is told
    /// as the end of the call.
    virtual CallId place(LineNumber line, const std::string& number) = 0;

    /// INCOMING.
    virtual bool answer(CallId call) = 0;

    /// INCOMING: passes it on to another number unanswered. Not to a line of mine that is not registered.
    virtual bool deflect(CallId call, const std::string& number) = 0;

    /// Ends a call that lives, in whatever state; rejects one that is INCOMING. Of a conference one call only.
    virtual bool end(CallId call) = 0;

    /// CONNECTED, HELD_BY_OTHER, CONFERENCE. A conference is held and resumed as a whole.
    virtual bool hold(CallId call) = 0;

    /// HELD_BY_ME, HELD_BY_BOTH.
    virtual bool resume(CallId call) = 0;

    /// Blind: hands the other one over to a number. The call ends when it rings there, else it comes back with the
    /// reason. REQUIRES for true: one speaks or holds, and not in a conference.
    virtual bool transferTo(CallId call, const std::string& number) = 0;

    /// Consulted: brings the other ones of two calls together; both calls end. The one who is consulted may still be
    /// rung.
    virtual bool transfer(CallId call, CallId consulted) = 0;

    /// A conference of three: both calls speak with each other and with me. REQUIRES for true: one speaks or holds on
    /// both, and neither is in a conference.
    virtual bool join(CallId call, CallId other) = 0;

    /// False where there is no such line, or `answerTime` is negative or longer than a day. They hold for the calls to
    /// come.
    virtual bool setForwarding(LineNumber line, const Forwarding& forwarding) = 0;
    virtual bool setDoNotDisturb(LineNumber line, bool on) = 0;
    virtual bool setTakesSeveral(LineNumber line, bool on) = 0;
};

} // namespace exchange
