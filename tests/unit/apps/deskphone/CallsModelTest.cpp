// Two lines and four parties do at random what they can. What the telephone knows of every call, and what its panel
// shows, has to be what the model makes of it.

#include "unit/apps/deskphone/CallsModel.h"
#include "apps/deskphone/CallWords.h"
#include "host/Phone.h"
#include "unit/apps/deskphone/CallsFixture.h"
#include "unit/apps/deskphone/DeskFixture.h"
#include "unit/apps/deskphone/ShownObject.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

using deskphone::PhoneCall;
using exchange::CallState;
using test::CallsModel;
using test::Leg;
using test::ShownObject;
using test::Stage;
using testing::ElementsAreArray;

namespace {

constexpr int STEPS = CALLS_MODEL_STEPS; ///< of each seed

class CallsModelTest : public test::SeededTest {
protected:
    /// Compares after every step.
    template <typename Compare>
    void walk(CallsModel& model, Compare compare)
    {
        for (int i = 0; i < STEPS && !HasFatalFailure(); ++i) {
            model.step();
            if (!HasFatalFailure())
                compare();
        }
        ASSERT_FALSE(HasFatalFailure()) << model.done();
    }
};

void compare(const CallsModel& model, const deskphone::Calls& calls)
{
    ASSERT_EQ(calls.all().size(), model.legs().size());
    for (const auto& [party, leg] : model.legs()) {
        const PhoneCall* const call = calls.find(leg.id);
        ASSERT_NE(call, nullptr) << party;
        ASSERT_EQ(nameOf(call->state()), nameOf(leg.state())) << party;
        ASSERT_EQ(call->last.other.number, CallsModel::numberOf(party));
        ASSERT_EQ(call->last.line, leg.line) << party;
        ASSERT_EQ(call->talkSince.has_value(), leg.stage == Stage::TALKS) << party;
    }
    ASSERT_TRUE(!model.isSpeaking() || calls.current()->state() != CallState::HELD_BY_ME);
}

TEST_P(CallsModelTest, TelephoneKnowsEveryCallAsItIs)
{
    test::CallsFixture phone;
    CallsModel model(phone, seed());
    walk(model, [&] { compare(model, phone.calls); });
}

constexpr std::array<const char*, 4> NAMES{"Ada", "Bert", "Cleo", "Dora"};

std::string nameOf(int party)
{
    return NAMES.at(static_cast<std::size_t>(party));
}

std::string wordOf(const Leg& leg)
{
    switch (leg.state()) {
    case CallState::RINGING_BACK: return "Ringing";
    case CallState::CONNECTED: return "Connected";
    case CallState::HELD_BY_ME: return "On hold";
    case CallState::HELD_BY_OTHER: return "Held by other";
    case CallState::HELD_BY_BOTH: return "Held by both";
    case CallState::CONFERENCE: return "Conference";
    default: return "no state of this model";
    }
}

bool isDuration(const std::string& text)
{
    return text.size() >= 5 && text.find_first_not_of("0123456789:") == std::string::npos;
}

/// What the panel shows, beside the model. A conference may be one row with both of its members, of which a small panel
/// names but one; its word is that of one of them.
class Sight {
public:
    /// `rows` are all on the panel; those of other screens do not matter.
    Sight(const CallsModel& model, const std::string& screen, std::vector<ShownObject> rows)
        : mModel(model), mLegs(model.legs()), mStack(test::readScreen(screen)), mRows(std::move(rows))
    {
        std::erase_if(mRows, [](const ShownObject& row) {
            return row.name != "CallConnectedItem" && row.name != "ConferenceCallItem";
        });
    }

    void compare() const
    {
        comparePopups();
        if (!mRows.empty() || mModel.ringing().empty())
            for (const auto& [party, leg] : mLegs)
                compareRow(party, leg);
        for (const ShownObject& row : mRows)
            compareRow(row);
        if (mModel.ringing().empty())
            compareStatus();
    }

private:
    bool isOf(const ShownObject& row, int party) const
    {
        const auto& partner = mLegs.at(party).partner;
        return row.says(nameOf(party)) || (row.name == "ConferenceCallItem" && partner && row.says(nameOf(*partner)));
    }

    /// Those that ring here, and no others: the latest on top of all.
    void comparePopups() const
    {
        std::vector<std::string> shown, wanted;
        for (const ShownObject& object : mStack)
            if (object.name == "PopupCall")
                shown.push_back(object.caption);
        for (const int party : mModel.ringing())
            wanted.push_back(nameOf(party));
        ASSERT_THAT(shown, ElementsAreArray(wanted));
        ASSERT_TRUE(wanted.empty() || mStack.back().name == "PopupCall") << mStack.back().name;
    }

    /// What rings here has no row, all else has one.
    void compareRow(int party, const Leg& leg) const
    {
        const auto rows = std::ranges::count_if(mRows, [=, this](const ShownObject& row) { return isOf(row, party); });
        ASSERT_EQ(rows, leg.stage == Stage::RINGS_HERE ? 0 : 1) << nameOf(party);
    }

    /// It is of those of whom it is, and says of them what is so.
    void compareRow(const ShownObject& row) const
    {
        std::vector<std::string> words;
        bool isTalk = true;
        for (const auto& [party, leg] : mLegs)
            if (isOf(row, party)) {
                words.push_back(wordOf(leg));
                isTalk = isTalk && leg.stage == Stage::TALKS;
            }
        ASSERT_EQ(words.size(), row.name == "ConferenceCallItem" ? 2U : 1U) << row.texts.front();
        ASSERT_TRUE(std::ranges::any_of(words, [&](const std::string& word) { return row.says(word); }))
            << testing::PrintToString(row.texts) << " is " << testing::PrintToString(words);
        ASSERT_EQ(std::ranges::any_of(row.texts, isDuration), isTalk) << row.texts.front();
    }

    /// The status lines tell of one with whom the user speaks, where he speaks with anybody.
    void compareStatus() const
    {
        const bool isTold = std::ranges::any_of(mLegs, [this](const auto& leg) {
            return (leg.second.isActive() || !mModel.isSpeaking()) && isInStatus(nameOf(leg.first));
        });
        ASSERT_EQ(isTold, !mLegs.empty() && host::variant() != host::Variant::WP1);
    }

    bool isInStatus(const std::string& name) const
    {
        return std::ranges::any_of(mStack.front().parts, [&](const ShownObject& part) {
            return part.name == "SystemWindow" && part.says(name);
        });
    }

    const CallsModel& mModel;
    const CallsModel::Legs& mLegs;
    std::vector<ShownObject> mStack;
    std::vector<ShownObject> mRows;
};

/// A panel for each of three seeds.
TEST_P(CallsModelTest, PanelShowsEveryCallAsItIs)
{
    test::DeskFixture phone(static_cast<host::Variant>(seed() % 3));
    CallsModel model(phone, seed());
    phone.run([&] {
        walk(model, [&] {
            Sight(model, phone.shows(), phone.rows()).compare();
            ASSERT_FALSE(HasFatalFailure()) << phone.shows();
        });
    });
}

INSTANTIATE_SEEDED(CallsModelTest);

} // namespace
