#include "unit/apps/deskphone/CallsModel.h"

#include <algorithm>
#include <array>
#include <utility>

namespace test {

namespace {

constexpr int PARTIES = 4;
constexpr int LONGEST_RINGING = 40; ///< in steps of a second; the network gives up after a minute
constexpr int STEPS_TOLD = 50;

} // namespace

std::vector<int> CallsModel::ringing() const
{
    std::map<exchange::CallId, int> parties;
    for (const auto& [party, leg] : mLegs)
        if (leg.stage == Stage::RINGS_HERE)
            parties[leg.id] = party;
    std::vector<int> ordered;
    for (const auto& [call, party] : parties)
        ordered.push_back(party);
    return ordered;
}

bool CallsModel::isSpeaking() const
{
    return std::ranges::any_of(mLegs, [](const auto& leg) { return leg.second.isActive(); });
}

bool CallsModel::say(int party, const std::string& what)
{
    mDone << numberOf(party) << " " << what << "; ";
    return mPhone.exchange.command(numberOf(party) + " " + what).empty();
}

bool CallsModel::is(int party, Stage stage) const
{
    const auto leg = mLegs.find(party);
    return leg != mLegs.end() && leg->second.stage == stage;
}

void CallsModel::holdActive(int but, std::optional<int> butAlso)
{
    for (auto& [party, leg] : mLegs)
        if (party != but && party != butAlso && leg.isActive())
            leg.heldByMe = true;
}

void CallsModel::withPartner(int party, const std::function<void(Leg&)>& change)
{
    change(mLegs.at(party));
    if (const auto partner = mLegs.at(party).partner)
        change(mLegs.at(*partner));
}

void CallsModel::leave(int party)
{
    if (const auto partner = mLegs.at(party).partner)
        mLegs.at(*partner).partner.reset();
    mLegs.erase(party);
}

// Each does something that may be possible, and makes the model follow where it is.

void CallsModel::calls(int party)
{
    if (mLegs.contains(party))
        return;
    const int line = 1 + mChance.below(2);
    ASSERT_TRUE(say(party, "calls line " + std::to_string(line)));
    mLegs[party] = {.id = ++mLast, .line = line};
}

void CallsModel::place(int party)
{
    if (mLegs.contains(party))
        return;
    mDone << "place " << party << "; ";
    const int line = 1 + mChance.below(2);
    holdActive(party);
    mLegs[party] = {.id = ++mLast, .line = line, .stage = Stage::RINGS_THERE};
    ASSERT_EQ(mPhone.place(line, {numberOf(party), ""}), mLast);
}

void CallsModel::otherAnswers(int party)
{
    const bool isPossible = is(party, Stage::RINGS_THERE);
    ASSERT_EQ(say(party, "answers"), isPossible);
    if (!isPossible)
        return;
    mLegs[party].heldByMe = isSpeaking();
    mLegs[party].stage = Stage::TALKS;
}

void CallsModel::answer(int party)
{
    const bool isPossible = is(party, Stage::RINGS_HERE);
    mDone << "answer " << party << "; ";
    ASSERT_EQ(mPhone.exchange.answer(idOf(party)), isPossible);
    if (!isPossible)
        return;
    holdActive(party);
    mLegs[party].stage = Stage::TALKS;
}

void CallsModel::end(int party)
{
    mDone << "end " << party << "; ";
    ASSERT_EQ(mPhone.exchange.end(idOf(party)), mLegs.contains(party));
    if (mLegs.contains(party))
        leave(party);
}

void CallsModel::otherEnds(int party)
{
    ASSERT_EQ(say(party, "ends"), mLegs.contains(party));
    if (mLegs.contains(party))
        leave(party);
}

void CallsModel::hold(int party)
{
    const bool isPossible = isActive(party);
    mDone << "hold " << party << "; ";
    ASSERT_EQ(mPhone.exchange.hold(idOf(party)), isPossible);
    if (isPossible)
        withPartner(party, [](Leg& leg) { leg.heldByMe = true; });
}

void CallsModel::resume(int party)
{
    const bool isPossible = is(party, Stage::TALKS) && !isActive(party);
    mDone << "resume " << party << "; ";
    ASSERT_EQ(mPhone.exchange.resume(idOf(party)), isPossible);
    if (!isPossible)
        return;
    holdActive(party, mLegs[party].partner);
    withPartner(party, [](Leg& leg) { leg.heldByMe = false; });
}

void CallsModel::otherHolds(int party)
{
    const bool isPossible = is(party, Stage::TALKS) && !mLegs.at(party).heldByOther;
    ASSERT_EQ(say(party, "holds"), isPossible);
    if (isPossible)
        mLegs[party].heldByOther = true;
}

void CallsModel::otherResumes(int party)
{
    const bool isPossible = is(party, Stage::TALKS) && mLegs.at(party).heldByOther;
    ASSERT_EQ(say(party, "resumes"), isPossible);
    if (isPossible)
        mLegs[party].heldByOther = false;
}

void CallsModel::join(int party)
{
    const int other = mChance.below(PARTIES);
    const bool isPossible = party != other && talksAlone(party) && talksAlone(other);
    mDone << "join " << party << " " << other << "; ";
    ASSERT_EQ(mPhone.exchange.join(idOf(party), idOf(other)), isPossible);
    if (!isPossible)
        return;
    holdActive(party, other);
    mLegs[party].partner = other;
    mLegs[other].partner = party;
    withPartner(party, [](Leg& leg) { leg.heldByMe = false; });
}

void CallsModel::transfer(int party)
{
    const int other = mChance.below(PARTIES);
    if (party == other || !talksAlone(party) || !talksAlone(other))
        return;
    mDone << "transfer " << party << " " << other << "; ";
    ASSERT_TRUE(mPhone.exchange.transfer(idOf(party), idOf(other)));
    mLegs.erase(party);
    mLegs.erase(other);
}

void CallsModel::step()
{
    if (mSteps++ % STEPS_TOLD == 0)
        mDone.str(std::to_string(mSteps) + ": ");
    using Deed = void (CallsModel::*)(int);
    constexpr std::array<Deed, 14> DEEDS{&CallsModel::calls,  &CallsModel::calls,        &CallsModel::place,
                                         &CallsModel::place,  &CallsModel::otherAnswers, &CallsModel::answer,
                                         &CallsModel::end,    &CallsModel::otherEnds,    &CallsModel::hold,
                                         &CallsModel::resume, &CallsModel::otherHolds,   &CallsModel::otherResumes,
                                         &CallsModel::join,   &CallsModel::transfer};
    (this->*DEEDS[static_cast<std::size_t>(mChance.below(static_cast<int>(DEEDS.size())))])(mChance.below(PARTIES));
    for (int party = 0; party < PARTIES; ++party)
        if (mLegs.contains(party) && mLegs[party].stage != Stage::TALKS && ++mLegs[party].age > LONGEST_RINGING)
            end(party);
    mPhone.pass(1000);
}

} // namespace test
