#include "simulator/script/Hand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace simulator;
using host::Choices;
using host::Workplace;
using Kind = Choices::Kind;
using Texts = std::vector<std::string>;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// A telephone of choices that the keys go through, one part below the other.
class PhoneOfChoices : public ScriptedPhone {
public:
    struct Part {
        Kind kind;
        Texts names;
        bool isRing = false;
        int current = 0;
    };

    void key(PegKey key)
    {
        keys.push_back(key);
        Part& part = parts[at];
        const bool sideBySide = part.kind == Kind::BAR || part.kind == Kind::TABS;
        const PegKey before = sideBySide ? PK_LEFT : PK_UP;
        const PegKey behind = sideBySide ? PK_RIGHT : PK_DOWN;
        const int last = static_cast<int>(part.names.size()) - 1;
        if (key == before && (part.current > 0 || part.isRing))
            part.current = part.current > 0 ? part.current - 1 : last;
        else if (key == behind && (part.current < last || part.isRing))
            part.current = part.current < last ? part.current + 1 : 0;
        else if (key == PK_UP && at > 0)
            --at;
        else if (key == PK_DOWN && at + 1 < parts.size())
            ++at;
        else if (key == PK_UP && part.kind == Kind::FIELDS) // a form's commands are on either side
            at = parts.size() - 1;
        else if (onKey)
            onKey(key);
    }

    std::optional<Workplace> workplace(const Texts& wanted) override
    {
        Workplace place;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const Part& part = parts[i];
            Choices choices{.kind = part.kind,
                            .count = static_cast<int>(part.names.size()),
                            .current = part.current,
                            .hasKeys = i == at && !isStuck,
                            .isRing = part.isRing};
            if (part.kind == Kind::BAR || part.kind == Kind::TABS) {
                choices.before = PK_LEFT;
                choices.behind = PK_RIGHT;
            }
            choices.texts = {part.names[static_cast<std::size_t>(part.current)], value};
            for (int n = 0; n < choices.count && !wanted.empty(); ++n) {
                const std::string& name = part.names[static_cast<std::size_t>(n)];
                choices.names.push_back(name);
                const auto has = [&](const std::string& text) { return name.find(text) != std::string::npos; };
                if (std::ranges::find(wanted, name) != wanted.end())
                    choices.found.push_back(n);
                else if (std::ranges::any_of(wanted, has))
                    choices.similar.push_back(n);
            }
            place.choices.push_back(choices);
        }
        if (isEditing)
            place.edited = host::EditedText{value, static_cast<int>(value.size())};
        return place;
    }

    Workplace::Typed type(const std::string& text) override
    {
        if (!isEditing)
            return Workplace::Typed::NOWHERE;
        value = text.substr(0, room);
        return value == text ? Workplace::Typed::TAKEN : Workplace::Typed::OTHERWISE;
    }

    bool press(PegKey) override { return true; }
    bool release(PegKey) override { return true; }
    void pass(std::int64_t) override {}
    bool advance(std::int64_t) override { return true; }
    bool settle(const std::function<void()>&) override { return true; }
    std::string say(const std::string&, const std::string&) override { return {}; }
    std::string translate(const std::string& key) override { return key; }
    void rest(milliseconds) override
    {
        if (onRest)
            onRest();
    }
    host::Picture picture() override { return {}; }
    ScreenPtr screen() override { return nullptr; }
    std::optional<std::string> waitFor(const ScreenCondition&, milliseconds) override { return {}; }
    bool isThere() override { return true; }

    std::vector<Part> parts;
    std::size_t at = 0;
    std::vector<PegKey> keys;
    std::function<void(PegKey)> onKey; ///< what leads nowhere
    std::function<void()> onRest;
    std::string value;
    std::size_t room = 100;
    bool isEditing = false;
    bool isStuck = false;
};

class HandTest : public testing::Test {
protected:
    PhoneOfChoices phone;
    Hand hand{phone,
              {[this](PegKey key, int times) {
                   for (int i = 0; i < times; ++i)
                       phone.key(key);
               },
               [this](PegKey key) { finish(key); }, [] {}},
              milliseconds(0)};

    void finish(PegKey key)
    {
        phone.key(key);
        finished.push_back(key);
    }

    std::vector<PegKey> finished; ///< by these

    std::string current() const
    {
        const PhoneOfChoices::Part& part = phone.parts[phone.at];
        return part.names[static_cast<std::size_t>(part.current)];
    }
};

TEST_F(HandTest, GoesToTheRowAndPressesOk)
{
    phone.parts = {{Kind::ROWS, {"a", "b", "c"}}};
    EXPECT_EQ(hand.choose({"c"}), "");
    EXPECT_THAT(phone.keys, ElementsAre(PK_DOWN, PK_DOWN, PK_OK));
    EXPECT_EQ(hand.select({"b"}), "");
    EXPECT_EQ(phone.keys.back(), PK_UP);
}

TEST_F(HandTest, OnlyTheKeyThatDoesItFinishes)
{
    phone.parts = {{Kind::ROWS, {"a", "b", "c"}}};
    EXPECT_EQ(hand.select({"c"}), "");
    EXPECT_THAT(finished, IsEmpty());
    EXPECT_EQ(hand.choose({"a"}), "");
    EXPECT_THAT(finished, ElementsAre(PK_OK));
    EXPECT_EQ(hand.back(), "");
    EXPECT_THAT(finished, ElementsAre(PK_OK, PK_LEFT));
}

TEST_F(HandTest, RingIsGoneRoundTheShorterWay)
{
    phone.parts = {{Kind::MENU, {"a", "b", "c", "d", "e"}, true}};
    EXPECT_EQ(hand.select({"e"}), "");
    EXPECT_THAT(phone.keys, ElementsAre(PK_UP));
}

TEST_F(HandTest, RowThatIsItComesBeforeOneThatHasIt)
{
    phone.parts = {{Kind::ROWS, {"x", "Adam", "Ada"}}};
    EXPECT_EQ(hand.select({"Ada"}), "");
    EXPECT_EQ(current(), "Ada");
    EXPECT_EQ(hand.select({"dam"}, 1, Hand::Match::PART), "");
    EXPECT_EQ(current(), "Adam");
    EXPECT_THAT(hand.select({"dam"}), StartsWith("there is no 'dam' to go to"));
}

TEST_F(HandTest, RowThatIsItAndComesLaterComesBeforeOneThatHasIt)
{
    Hand patient(phone, {[this](PegKey key, int) { phone.key(key); }, [this](PegKey key) { finish(key); }, [] {}},
                 std::chrono::seconds(60));
    phone.parts = {{Kind::ROWS, {"Call log"}}};
    phone.onRest = [this] { phone.parts[0].names = {"Call log", "Call"}; };
    EXPECT_EQ(patient.select({"Call"}, 1, Hand::Match::PART), "");
    EXPECT_EQ(current(), "Call");
}

TEST_F(HandTest, FirstTextThatSomethingIsCalledIsMeant)
{
    phone.parts = {{Kind::ROWS, {"Sonnerie", "Volume"}}};
    EXPECT_EQ(hand.choose({"Volume", "Sonnerie"}), "");
    EXPECT_EQ(current(), "Volume");
    EXPECT_EQ(hand.choose({"Klang", "Sonnerie"}), "");
    EXPECT_EQ(current(), "Sonnerie");
}

TEST_F(HandTest, SecondCommandOfTheSameNameIsChosen)
{
    phone.parts = {{Kind::MENU, {"Call", "Delete", "Call", "Call log"}, true}};
    EXPECT_EQ(hand.command({"Call"}, 2), "");
    EXPECT_EQ(phone.parts[0].current, 2);
    EXPECT_EQ(phone.keys.back(), PK_OK);
}

TEST_F(HandTest, SecondOfTheSameNameIsFound)
{
    phone.parts = {{Kind::ROWS, {"x", "Ada", "y", "Ada"}}};
    EXPECT_EQ(hand.select({"Ada"}, 2), "");
    EXPECT_EQ(phone.parts[0].current, 3);
    EXPECT_EQ(hand.select({"Ada"}, 3), "there is no 'Ada' #3 to go to; there is 'x', 'Ada', 'y', 'Ada'");
}

TEST_F(HandTest, PartsAreLeftByUpAndDown)
{
    phone.parts = {{Kind::TABS, {"All", "Missed"}}, {Kind::ROWS, {"a", "b", "c"}, false, 2}};
    phone.at = 1;
    EXPECT_EQ(hand.select({"Missed"}), "");
    EXPECT_EQ(current(), "Missed");
    EXPECT_EQ(hand.select({"b"}), "");
    EXPECT_EQ(current(), "b");
    phone.parts = {{Kind::FIELDS, {"Name", "Number"}}, {Kind::BAR, {"Save", "Cancel"}}};
    phone.at = 0;
    EXPECT_EQ(hand.command({"Cancel"}), "");
    EXPECT_EQ(current(), "Cancel");
}

TEST_F(HandTest, CommandThatIsNotInSightIsInTheRowsMenu)
{
    phone.parts = {{Kind::ROWS, {"Delete", "b"}}};
    phone.onKey = [this](PegKey key) {
        if (key == PK_RIGHT)
            phone.parts = {{Kind::MENU, {"Call", "Delete"}, true}};
    };
    EXPECT_EQ(hand.command({"Delete"}), "");
    EXPECT_THAT(phone.keys, ElementsAre(PK_RIGHT, PK_DOWN, PK_OK));
}

TEST_F(HandTest, WhatIsNotThereIsToldWithWhatIs)
{
    phone.parts = {{Kind::ROWS, {"a", "b"}}};
    EXPECT_EQ(hand.choose({"x", "y"}), "there is no 'x' or 'y' to go to; there is 'a', 'b'");
    EXPECT_THAT(phone.keys, IsEmpty());
}

TEST_F(HandTest, RowThatComesLaterIsAwaited)
{
    Hand patient(phone, {[this](PegKey key, int) { phone.key(key); }, [this](PegKey key) { finish(key); }, [] {}},
                 std::chrono::seconds(60));
    phone.parts = {{Kind::ROWS, {"a"}}};
    phone.onRest = [this] { phone.parts[0].names = {"a", "b"}; };
    EXPECT_EQ(patient.select({"b"}), "");
}

TEST_F(HandTest, WayThatLeadsNowhereEnds)
{
    phone.parts = {{Kind::ROWS, {"a", "b"}}};
    phone.isStuck = true;
    EXPECT_EQ(hand.select({"a"}), "the keys do not lead to 'a'");
    phone.isStuck = false;
    phone.parts = {{Kind::ROWS, {"a", "b"}}, {Kind::TABS, {"T"}}}; // below the rows, where nobody looks for tabs
    EXPECT_EQ(hand.select({"T"}), "the keys do not lead to 'T'");
}

TEST_F(HandTest, RowThatRunsAwayIsNotFollowedForEver)
{
    phone.parts = {{Kind::ROWS, {"x", "y", "a"}}};
    Hand chasing(phone,
                 {[this](PegKey key, int) {
                      phone.key(key);
                      phone.parts[0].names.insert(phone.parts[0].names.begin(), "new");
                  },
                  [this](PegKey key) { finish(key); }, [] {}},
                 milliseconds(0));
    EXPECT_EQ(chasing.select({"a"}), "the keys do not lead to 'a'");
}

TEST_F(HandTest, FieldIsSetByLeftAndRight)
{
    phone.parts = {{Kind::FIELDS, {"Ringing"}}};
    phone.value = "5";
    phone.onKey = [this](PegKey key) {
        const int next = phone.value[0] - '0' + (key == PK_RIGHT ? 1 : -1);
        if (next >= 3 && next <= 7)
            phone.value = std::to_string(next);
    };
    EXPECT_EQ(hand.set({"6"}), "");
    EXPECT_EQ(hand.set({"3"}), "");
    EXPECT_EQ(hand.set({"5", "3"}), ""); // the first that it can have, not where it is
    EXPECT_EQ(phone.value, "5");
    EXPECT_EQ(hand.set({"9", "4"}), "");
    EXPECT_EQ(phone.value, "4");
    EXPECT_EQ(hand.set({"9"}), "left and right do not lead to '9'; the field's values lie between '7' and '3'");
}

TEST_F(HandTest, OnlyAFieldIsSet)
{
    phone.parts = {{Kind::ROWS, {"a"}}};
    EXPECT_EQ(hand.set({"6"}), "no field of a form is selected that could be set to '6'");
}

TEST_F(HandTest, FirstDigitOpensWhatIsTypedInto)
{
    phone.parts = {{Kind::ROWS, {"a"}}};
    phone.onKey = [this](PegKey key) { phone.isEditing = phone.isEditing || key == '4'; };
    EXPECT_EQ(hand.dial("4711"), "");
    EXPECT_EQ(phone.value, "4711");
    EXPECT_THAT(phone.keys, ElementsAre(static_cast<PegKey>('4'), PK_OK));
}

TEST_F(HandTest, TextThatIsRefusedIsTold)
{
    phone.parts = {{Kind::ROWS, {"a"}}};
    EXPECT_EQ(hand.type("x"), "there is nothing into which 'x' could be typed");
    phone.isEditing = true;
    phone.room = 2;
    EXPECT_EQ(hand.type("abc"), "'abc' cannot be typed here: there is 'ab' now");
}

TEST_F(HandTest, BackLeadsOutOfAnEditLine)
{
    phone.parts = {{Kind::ROWS, {"a"}}};
    phone.isEditing = true;
    phone.value = "abc";
    phone.onKey = [this](PegKey) { phone.isEditing = phone.keys.size() < 3; };
    EXPECT_EQ(hand.back(), "");
    EXPECT_THAT(phone.keys, ElementsAre(PK_LEFT, PK_LEFT, PK_LEFT));
    EXPECT_EQ(hand.back(), "");
    EXPECT_EQ(phone.keys.size(), 4u);
    phone.isEditing = true;
    phone.onKey = {};
    EXPECT_EQ(hand.back(), "the left key does not lead out of here");
}

} // namespace
