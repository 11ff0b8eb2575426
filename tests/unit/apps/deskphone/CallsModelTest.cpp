// Two lines and four parties do at random what they can. What the telephone knows of every call has to be what the few
// rules of this file make of it, which know nothing of the exchange's own.

#include "support/Application.h"
#include "unit/apps/deskphone/CallsFixture.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <sstream>

using deskphone::PhoneCall;
using exchange::CallId;
using exchange::CallState;

namespace {

constexpr int STEPS = 10'000; ///< of each seed
constexpr int PARTIES = 4;
constexpr int LONGEST_RINGING = 40; ///< in steps of a second; the network gives up after a minute

enum class Stage { RINGS_HERE, RINGS_THERE, TALKS };

struct Leg {
    CallId id = exchange::NO_CALL;
    int line = 1;
    Stage stage = Stage::RINGS_HERE;
    bool heldByMe = false, heldByOther = false;
    std::optional<int> partner = {}; ///< the other party of the conference
    int age = 0;

    bool isActive() const { return stage == Stage::TALKS && !heldByMe; }

    CallState state() const
    {
        if (stage != Stage::TALKS)
            return stage == Stage::RINGS_HERE ? CallState::INCOMING : CallState::RINGING_BACK;
        if (heldByMe)
            return heldByOther ? CallState::HELD_BY_BOTH : CallState::HELD_BY_ME;
        if (heldByOther)
            return CallState::HELD_BY_OTHER;
        return partner ? CallState::CONFERENCE : CallState::CONNECTED;
    }
};

/// By party.
using Legs = std::map<int, Leg>;

std::string numberOf(int party)
{
    return "471" + std::to_string(party);
}

class CallsModelTest : public test::SeededTest {
protected:
    test::CallsFixture phone;
    test::Chance chance{seed(), 0};
    Legs legs;
    std::ostringstream done; ///< what has been done last, for whoever has to find out why

    bool say(int party, const std::string& what)
    {
        done << numberOf(party) << " " << what << "; ";
        return phone.exchange.command(numberOf(party) + " " + what).empty();
    }

    bool is(int party, Stage stage) const
    {
        const auto leg = legs.find(party);
        return leg != legs.end() && leg->second.stage == stage;
    }

    bool isActive(int party) const { return legs.contains(party) && legs.at(party).isActive(); }
    bool talksAlone(int party) const { return is(party, Stage::TALKS) && !legs.at(party).partner; }
    CallId idOf(int party) const { return legs.contains(party) ? legs.at(party).id : 9'999'999; }

    void holdActive(int but, std::optional<int> butAlso = {})
    {
        for (auto& [party, leg] : legs)
            if (party != but && party != butAlso && leg.isActive())
                leg.heldByMe = true;
    }

    void withPartner(int party, const std::function<void(Leg&)>& change)
    {
        change(legs.at(party));
        if (const auto partner = legs.at(party).partner)
            change(legs.at(*partner));
    }

    void leave(int party)
    {
        if (const auto partner = legs.at(party).partner)
            legs.at(*partner).partner.reset();
        legs.erase(party);
    }

    // Each does something that may be possible, and makes the model follow where it is.

    void calls(int party)
    {
        if (legs.contains(party))
            return;
        const int line = 1 + chance.below(2);
        ASSERT_TRUE(say(party, "calls line " + std::to_string(line)));
        legs[party] = {.line = line};
        phone.settle();
        for (const PhoneCall* call : phone.calls.all())
            if (call->last.other.number == numberOf(party))
                legs[party].id = call->id();
    }

    void place(int party)
    {
        if (legs.contains(party))
            return;
        done << "place " << party << "; ";
        const int line = 1 + chance.below(2);
        holdActive(party);
        legs[party] = {.line = line, .stage = Stage::RINGS_THERE};
        legs[party].id = phone.place(line, {numberOf(party), ""});
    }

    void otherAnswers(int party)
    {
        const bool isPossible = is(party, Stage::RINGS_THERE);
        ASSERT_EQ(say(party, "answers"), isPossible);
        if (!isPossible)
            return;
        legs[party].heldByMe = std::ranges::any_of(legs, [](const auto& leg) { return leg.second.isActive(); });
        legs[party].stage = Stage::TALKS;
    }

    void answer(int party)
    {
        const bool isPossible = is(party, Stage::RINGS_HERE);
        done << "answer " << party << "; ";
        ASSERT_EQ(phone.exchange.answer(idOf(party)), isPossible);
        if (!isPossible)
            return;
        holdActive(party);
        legs[party].stage = Stage::TALKS;
    }

    void end(int party)
    {
        done << "end " << party << "; ";
        ASSERT_EQ(phone.exchange.end(idOf(party)), legs.contains(party));
        if (legs.contains(party))
            leave(party);
    }

    void otherEnds(int party)
    {
        ASSERT_EQ(say(party, "ends"), legs.contains(party));
        if (legs.contains(party))
            leave(party);
    }

    void hold(int party)
    {
        const bool isPossible = isActive(party);
        done << "hold " << party << "; ";
        ASSERT_EQ(phone.exchange.hold(idOf(party)), isPossible);
        if (isPossible)
            withPartner(party, [](Leg& leg) { leg.heldByMe = true; });
    }

    void resume(int party)
    {
        const bool isPossible = is(party, Stage::TALKS) && !isActive(party);
        done << "resume " << party << "; ";
        ASSERT_EQ(phone.exchange.resume(idOf(party)), isPossible);
        if (!isPossible)
            return;
        holdActive(party, legs[party].partner);
        withPartner(party, [](Leg& leg) { leg.heldByMe = false; });
    }

    void otherHolds(int party)
    {
        const bool isPossible = is(party, Stage::TALKS) && !legs.at(party).heldByOther;
        ASSERT_EQ(say(party, "holds"), isPossible);
        if (isPossible)
            legs[party].heldByOther = true;
    }

    void otherResumes(int party)
    {
        const bool isPossible = is(party, Stage::TALKS) && legs.at(party).heldByOther;
        ASSERT_EQ(say(party, "resumes"), isPossible);
        if (isPossible)
            legs[party].heldByOther = false;
    }

    void join(int party)
    {
        const int other = chance.below(PARTIES);
        const bool isPossible = party != other && talksAlone(party) && talksAlone(other);
        done << "join " << party << " " << other << "; ";
        ASSERT_EQ(phone.exchange.join(idOf(party), idOf(other)), isPossible);
        if (!isPossible)
            return;
        holdActive(party, other);
        legs[party].partner = other;
        legs[other].partner = party;
        withPartner(party, [](Leg& leg) { leg.heldByMe = false; });
    }

    void transfer(int party)
    {
        const int other = chance.below(PARTIES);
        if (party == other || !talksAlone(party) || !talksAlone(other))
            return;
        done << "transfer " << party << " " << other << "; ";
        ASSERT_TRUE(phone.exchange.transfer(idOf(party), idOf(other)));
        legs.erase(party);
        legs.erase(other);
    }

    void step()
    {
        using Deed = void (CallsModelTest::*)(int);
        constexpr std::array<Deed, 14> DEEDS{
            &CallsModelTest::calls,  &CallsModelTest::calls,        &CallsModelTest::place,
            &CallsModelTest::place,  &CallsModelTest::otherAnswers, &CallsModelTest::answer,
            &CallsModelTest::end,    &CallsModelTest::otherEnds,    &CallsModelTest::hold,
            &CallsModelTest::resume, &CallsModelTest::otherHolds,   &CallsModelTest::otherResumes,
            &CallsModelTest::join,   &CallsModelTest::transfer};
        (this->*DEEDS[static_cast<std::size_t>(chance.below(static_cast<int>(DEEDS.size())))])(chance.below(PARTIES));
        for (int party = 0; party < PARTIES; ++party)
            if (legs.contains(party) && legs[party].stage != Stage::TALKS && ++legs[party].age > LONGEST_RINGING)
                end(party);
        phone.pass(1000);
    }

    void compare()
    {
        ASSERT_EQ(phone.calls.all().size(), legs.size()) << done.str();
        for (const auto& [party, leg] : legs) {
            const PhoneCall* const call = phone.calls.find(leg.id);
            ASSERT_NE(call, nullptr) << numberOf(party) << ": " << done.str();
            ASSERT_EQ(nameOf(call->state()), nameOf(leg.state())) << numberOf(party) << ": " << done.str();
            ASSERT_EQ(call->last.other.number, numberOf(party)) << done.str();
            ASSERT_EQ(call->last.line, leg.line) << done.str();
            ASSERT_EQ(call->talkSince.has_value(), leg.stage == Stage::TALKS) << done.str();
        }
        const bool speaks = std::ranges::any_of(legs, [](const auto& leg) { return leg.second.isActive(); });
        ASSERT_TRUE(!speaks || phone.calls.current()->state() != CallState::HELD_BY_ME) << done.str();
    }
};

TEST_P(CallsModelTest, TelephoneKnowsEveryCallAsItIs)
{
    for (int i = 0; i < STEPS; ++i) {
        if (i % 50 == 0)
            done.str(std::to_string(i) + ": ");
        step();
        ASSERT_FALSE(HasFatalFailure()) << done.str();
        compare();
        ASSERT_FALSE(HasFatalFailure());
    }
}

INSTANTIATE_SEEDED(CallsModelTest);

} // namespace
