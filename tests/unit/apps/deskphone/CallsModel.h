#pragma once

#include "support/Application.h"
#include "unit/apps/deskphone/Parties.h"

#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace test {

enum class Stage { RINGS_HERE, RINGS_THERE, TALKS };

/// A call as this model sees it.
struct Leg {
    exchange::CallId id = exchange::NO_CALL;
    int line = 1;
    Stage stage = Stage::RINGS_HERE;
    bool heldByMe = false, heldByOther = false;
    std::optional<int> partner = {}; ///< the other party of the conference
    int age = 0;

    bool isActive() const { return stage == Stage::TALKS && !heldByMe; }

    exchange::CallState state() const
    {
        using exchange::CallState;
        if (stage != Stage::TALKS)
            return stage == Stage::RINGS_HERE ? CallState::INCOMING : CallState::RINGING_BACK;
        if (heldByMe)
            return heldByOther ? CallState::HELD_BY_BOTH : CallState::HELD_BY_ME;
        if (heldByOther)
            return CallState::HELD_BY_OTHER;
        return partner ? CallState::CONFERENCE : CallState::CONNECTED;
    }
};

/// Two lines and four parties, who do at random what they can, and what has to be known of every call then: the few
/// rules of this class, which know nothing of the exchange's own.
class CallsModel {
public:
    /// By party.
    using Legs = std::map<int, Leg>;

    CallsModel(Parties& phone, unsigned int seed) : mPhone(phone), mChance(seed, 0) {}

    /// Does something that may be possible, and lets a second pass. Fatal failures of GoogleTest where the exchange
    /// does not do what it should, or does what it should not.
    void step();

    const Legs& legs() const { return mLegs; }

    /// The parties that ring here, the latest last.
    std::vector<int> ringing() const;

    /// Whether the user speaks with somebody.
    bool isSpeaking() const;

    /// What has been done last, for whoever has to find out why.
    std::string done() const { return mDone.str(); }

    static std::string numberOf(int party) { return "471" + std::to_string(party); }

private:
    bool say(int party, const std::string& what);
    bool is(int party, Stage stage) const;
    bool isActive(int party) const { return mLegs.contains(party) && mLegs.at(party).isActive(); }
    bool talksAlone(int party) const { return is(party, Stage::TALKS) && !mLegs.at(party).partner; }
    exchange::CallId idOf(int party) const { return mLegs.contains(party) ? mLegs.at(party).id : 9'999'999; }
    void holdActive(int but, std::optional<int> butAlso = {});
    void withPartner(int party, const std::function<void(Leg&)>& change);
    void leave(int party);

    // Each does something that may be possible, and makes the model follow where it is.

    void calls(int party);
    void place(int party);
    void otherAnswers(int party);
    void answer(int party);
    void end(int party);
    void otherEnds(int party);
    void hold(int party);
    void resume(int party);
    void otherHolds(int party);
    void otherResumes(int party);
    void join(int party);
    void transfer(int party);

    Parties& mPhone;
    Chance mChance;
    Legs mLegs;
    exchange::CallId mLast = exchange::NO_CALL; ///< calls of an exchange are counted
    int mSteps = 0;
    std::ostringstream mDone;
};

} // namespace test
