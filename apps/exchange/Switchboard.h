#pragma once

#include "apps/exchange/Directory.h"
#include "apps/exchange/LiveCall.h"
#include "apps/exchange/Schedule.h"
#include "apps/exchange/Sentence.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace exchange {

using Happening = std::variant<CallEvent, Line>;

/// All calls and lines, and what becomes of them; an exchange without its threads. For whoever holds the exchange's
/// lock. What each operation does, and when it is refused, says Telephony.
class Switchboard {
public:
    /// What happens is put at the end of `happenings`.
    Switchboard(Numbers numbers, Schedule& schedule, std::deque<Happening>& happenings);

    CallId place(LineNumber line, const std::string& number);
    bool answer(CallId call);
    bool deflect(CallId call, const std::string& number);
    bool end(CallId call);
    bool hold(CallId call);
    bool resume(CallId call);
    bool transferTo(CallId call, const std::string& number);
    bool transfer(CallId call, CallId consulted);
    bool join(CallId call, CallId other);

    const std::vector<Line>& lines() const { return mLines; }
    std::vector<Party> parties() const { return mDirectory.parties(); }

    /// Lets `change` change a line, and tells of it where it has. False where there is no such line.
    bool changeLine(LineNumber line, const std::function<void(Line&)>& change);

    /// Tells the last event of each call that lives once more.
    void tellAll() const;

    /// Throws a Mistake where it cannot be followed.
    void follow(const Sentence& sentence);

private:
    using Step = void (Switchboard::*)(LiveCall&);

    // What every part needs.
    LiveCall* find(CallId call);
    LiveCall* findTalking(CallId call); ///< and nothing of mine is under way
    Line* findLine(LineNumber line);
    Line* findLine(const std::string& number);
    LiveCall& make(LineNumber line, Direction direction, Party other);
    void later(Schedule::Ticket LiveCall::*ticket, LiveCall& call, std::int64_t milliseconds, Step step);
    void goOn(LiveCall& call, std::int64_t milliseconds, Step step); ///< what he does next; less if he was at it before
    void tell(LiveCall& call, CallState state, Circumstances circumstances = {});
    void finish(LiveCall& call, CallState state, Circumstances circumstances);
    void finishUnanswered(LiveCall& call, const Directory::Destination& destination);
    int callsOn(LineNumber line) const;

    // On the way to somebody.
    void dial(LiveCall& call, const std::string& number);
    void proceed(LiveCall& call);
    void reach(LiveCall& call);
    void ring(LiveCall& call, const Directory::Destination& destination);
    void waitForOther(LiveCall& call, Circumstances circumstances = {});
    void otherAnswers(LiveCall& call);
    void otherRejects(LiveCall& call);
    void otherForwards(LiveCall& call);
    void ringsTooLong(LiveCall& call);
    void planCallBack(const LiveCall& gone);

    // On the way to here.
    static Reason refusalOf(const Line& line, int calls); ///< NONE where it rings; whatever it forwards
    bool canPassOnTo(const std::string& number);          ///< false for nobody
    void arrive(Line& line, const Caller& caller);
    void passOn(LiveCall& call, const std::string& number, int hops);
    void isNotAnswered(LiveCall& call);

    // While one speaks.
    static bool isActive(const LiveCall& call);
    static CallState talkState(const LiveCall& call);
    static bool isInConference(const LiveCall& call);
    void beginTalk(LiveCall& call, Circumstances circumstances = {});
    void tellTalk(LiveCall& call);
    void planTalkStep(LiveCall& call);
    void takeTalkStep(LiveCall& call);
    void act(LiveCall& call, TalkStep::Kind kind, const std::string& number);
    void setHeldByOther(LiveCall& call, bool on);
    void setHeldByMe(LiveCall& call);
    void holdActive(CallId but, CallId butAlso = NO_CALL);
    std::vector<LiveCall*> membersOf(LiveCall& call);
    void isResumed(LiveCall& call);
    void leaveConference(LiveCall& call);
    void beginTransfer(LiveCall& call, Circumstances circumstances);
    void isTransferred(LiveCall& call);
    void haveBroughtTogether(CallId call, CallId consulted);
    LiveCall* rejoin(LiveCall& call);
    void comeBack(LiveCall& call, Circumstances circumstances);
    void isTransferredByOther(LiveCall& call);

    // Sentences.
    void follow(const LineSentence& sentence);
    void follow(const Number& number);
    void follow(const Deed& deed);
    void callNow(const Deed& deed);
    void endNow(const Deed& deed);
    void failCallsOn(LineNumber line);
    LiveCall& findFor(const Deed& deed);

    Schedule& mSchedule;
    std::deque<Happening>& mHappenings;
    std::vector<Line> mLines;
    Directory mDirectory;
    std::map<CallId, LiveCall> mCalls;
    std::map<std::string, Schedule::Ticket> mCallBacks; ///< who calls back, at most once at a time
    CallId mLastCall = NO_CALL;
};

} // namespace exchange
