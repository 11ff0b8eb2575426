#include "simulator/script/Hand.h"

#include <algorithm>
#include <cstdlib>

namespace simulator {

namespace {

using host::Choices;
using host::Workplace;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// How often it is looked whether something has come.
constexpr milliseconds GLANCE(10);

/// Keys that go down one after the other without a look at what they do.
constexpr int AT_ONCE = 16;

/// Presses for nothing, after which a way leads nowhere: one may be taken by a message, or come before a row.
constexpr int MOST_IN_VAIN = 3;
constexpr int MOST_VALUES = 1000;

std::string inQuotes(const std::string& text)
{
    return "'" + text + "'";
}

bool isOfCommands(const Choices& choices)
{
    return choices.kind == Choices::Kind::MENU || choices.kind == Choices::Kind::BAR;
}

/// The value of the field that the user is at; nothing where he is at none.
std::optional<std::string> valueIn(const Workplace& place)
{
    const Choices* const fields = place.withKeys();
    if (fields == nullptr || fields->kind != Choices::Kind::FIELDS || fields->texts.size() < 2)
        return {};
    return fields->texts[1];
}

/// Where the user is among what stands side by side.
std::vector<int> placesIn(const Workplace& place)
{
    std::vector<int> places;
    for (const Choices& choices : place.choices)
        if (choices.behind != PK_DOWN)
            places.push_back(choices.current);
    return places;
}

std::size_t stepsIn(const Workplace& place)
{
    int steps = 0;
    for (const Choices& choices : place.choices)
        steps += choices.behind != PK_DOWN ? choices.count : 0;
    return static_cast<std::size_t>(steps);
}

PegKey keyThatTypes(const std::string& text)
{
    const char first = text.front();
    if (isOfKeypad(first))
        return static_cast<PegKey>(first);
    return first == '+' ? PK_0 : static_cast<PegKey>('2');
}

} // namespace

std::string anyOf(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " or ") + inQuotes(text);
    return all;
}

Hand::Hand(ScriptedPhone& phone, Keys keys, milliseconds patience)
    : mPhone(phone), mKeys(std::move(keys)), mPatience(patience)
{
}

Workplace Hand::look(const Texts& wanted)
{
    return mPhone.workplace(wanted).value_or(Workplace());
}

/// Where the keys are comes first.
Hand::Goal Hand::goalIn(const Workplace& place, const Search& search, Match match)
{
    for (const bool hasKeys : {true, false}) {
        for (const Choices& choices : place.choices) {
            const std::vector<int>& those = match == Match::WHOLE ? choices.found : choices.similar;
            const bool counts = choices.hasKeys == hasKeys && (search.among == Among::ALL || isOfCommands(choices));
            if (counts && static_cast<int>(those.size()) >= search.nth)
                return {choices.kind, those[static_cast<std::size_t>(search.nth - 1)]};
        }
    }
    return {};
}

/// One text after the other: in another language the second one may be what something else is called.
Hand::Sight Hand::look(const Search& search, Match match)
{
    Sight sight;
    for (const std::string& text : search.wanted) {
        sight.place = look({text});
        sight.goal = goalIn(sight.place, search, match);
        if (sight.goal.at >= 0)
            break;
    }
    return sight;
}

/// Waits until it is there. A part of a text counts only when nothing has come that is it.
std::string Hand::find(const Search& search, Match& match)
{
    const auto deadline = steady_clock::now() + mPatience;
    for (;;) {
        match = Match::WHOLE;
        const Sight sight = look(search, match);
        if (sight.goal.at >= 0)
            return {};
        if (!mPhone.isThere() || steady_clock::now() >= deadline) {
            match = search.match;
            if (match == Match::PART && look(search, match).goal.at >= 0)
                return {};
            return listing(sight.place,
                           anyOf(search.wanted) + (search.nth > 1 ? " #" + std::to_string(search.nth) : ""));
        }
        mPhone.rest(GLANCE);
        mKeys.settle();
    }
}

std::string Hand::listing(const Workplace& place, const std::string& what)
{
    std::string names;
    bool isMore = false;
    for (const Choices& choices : place.choices) {
        isMore = isMore || choices.count > static_cast<int>(choices.names.size());
        for (const std::string& name : choices.names)
            names += (names.empty() ? "" : ", ") + inQuotes(name);
    }
    if (names.empty())
        return "there is no " + what + " to go to, and nothing else";
    return "there is no " + what + " to go to; there is " + names + (isMore ? " and more" : "");
}

/// Negative is towards the first one.
int Hand::steps(const Choices& choices, int to)
{
    const int ahead = to - choices.current;
    if (!choices.isRing || 2 * std::abs(ahead) <= choices.count)
        return ahead;
    return ahead > 0 ? ahead - choices.count : ahead + choices.count;
}

/// The next key on the way there: along what has the keys, or out of it.
PegKey Hand::keyTowards(const Workplace& place, const Choices& there, int steps)
{
    if (there.hasKeys)
        return steps < 0 ? there.before : there.behind;
    const Choices* const here = place.withKeys();
    switch (there.kind) {
    case Choices::Kind::ROWS: return PK_DOWN;
    case Choices::Kind::BAR: return here != nullptr && 2 * here->current < here->count - 1 ? PK_UP : PK_DOWN;
    default: return PK_UP;
    }
}

std::string Hand::walk(const Search& search, Match match)
{
    int inVain = 0;
    int left = -1;
    std::pair<Choices::Kind, int> before{Choices::Kind::ROWS, -1};
    for (;;) {
        const auto [place, goal] = look(search, match);
        const Choices* const there = goal.at >= 0 ? place.part(goal.kind) : nullptr;
        if (there == nullptr)
            return anyOf(search.wanted) + " has gone while the keys led to it";
        const int away = steps(*there, goal.at);
        if (there->hasKeys && away == 0)
            return {};
        const Choices* const here = place.withKeys();
        const auto now = here != nullptr ? std::pair{here->kind, here->current} : before;
        inVain = now == before ? inVain + 1 : 0;
        before = now;
        if (left < 0)
            left = 2 * (there->count + (here != nullptr ? here->count : 0)) + 100; // rows may come meanwhile
        const int times = there->hasKeys ? std::min(std::abs(away), AT_ONCE) : 1;
        left -= times;
        if (inVain > MOST_IN_VAIN || left < 0 || !mPhone.isThere())
            return "the keys do not lead to " + anyOf(search.wanted);
        mKeys.press(keyTowards(place, *there, away), times);
    }
}

std::string Hand::go(const Search& search)
{
    Match match = search.match;
    const std::string complaint = find(search, match);
    return complaint.empty() ? walk(search, match) : complaint;
}

std::string Hand::choose(const Search& search)
{
    std::string complaint = go(search);
    if (complaint.empty())
        mKeys.finish(PK_OK);
    return complaint;
}

std::string Hand::select(const Texts& wanted, int nth, Match match)
{
    return go({wanted, nth, Among::ALL, match});
}

std::string Hand::choose(const Texts& wanted, int nth, Match match)
{
    return choose({wanted, nth, Among::ALL, match});
}

std::string Hand::command(const Texts& wanted, int nth, Match match)
{
    const Search search{wanted, nth, Among::COMMANDS, match};
    const Workplace place = look();
    const Choices* const here = place.withKeys();
    const bool hasMenu = here != nullptr && here->kind == Choices::Kind::ROWS;
    const bool isThere =
        look(search, Match::WHOLE).goal.at >= 0 || (match == Match::PART && look(search, Match::PART).goal.at >= 0);
    if (hasMenu && !isThere)
        mKeys.press(PK_RIGHT, 1);
    return choose(search);
}

/// Until the field says `wanted`, or the key changes nothing any more. False once there is no field.
bool Hand::turnTo(const std::string& wanted, PegKey key, std::string& value)
{
    for (int i = 0; i < MOST_VALUES && value != wanted; ++i) {
        const std::string before = value;
        mKeys.press(key, 1);
        const auto now = valueIn(look());
        if (!now)
            return false;
        value = *now;
        if (value == before)
            break;
    }
    return true;
}

/// One text after the other, as above.
std::string Hand::set(const Texts& wanted)
{
    std::optional<std::string> value = valueIn(look());
    if (!value)
        return "no field of a form is selected that could be set to " + anyOf(wanted);
    std::string ends;
    for (const std::string& text : wanted) {
        ends.clear();
        for (const PegKey key : {PK_RIGHT, PK_LEFT}) {
            if (!turnTo(text, key, *value))
                return "the field has gone that was to be set to " + anyOf(wanted);
            if (*value == text)
                return {};
            ends += (ends.empty() ? "" : " and ") + inQuotes(*value);
        }
    }
    return "left and right do not lead to " + anyOf(wanted) + "; the field's values lie between " + ends;
}

std::string Hand::type(const std::string& text)
{
    if (!look().edited && !text.empty())
        mKeys.press(keyThatTypes(text), 1);
    const auto deadline = steady_clock::now() + mPatience;
    auto typed = mPhone.type(text);
    while (typed == Workplace::Typed::NOWHERE && mPhone.isThere() && steady_clock::now() < deadline) {
        mPhone.rest(GLANCE);
        typed = mPhone.type(text);
    }
    mKeys.settle();
    if (typed == Workplace::Typed::NOWHERE)
        return "there is nothing into which " + inQuotes(text) + " could be typed";
    if (typed == Workplace::Typed::TAKEN)
        return {};
    const auto edited = look().edited;
    return inQuotes(text) + " cannot be typed here: there is " + inQuotes(edited ? edited->text : "") + " now";
}

std::string Hand::dial(const std::string& number)
{
    std::string complaint = type(number);
    if (complaint.empty())
        mKeys.finish(PK_OK);
    return complaint;
}

/// Where texts are read from the right, the left key leads through the tabs, or the commands of a bar, first.
std::string Hand::back()
{
    Workplace before = look();
    const std::size_t most = (before.edited ? before.edited->text.size() : 0) + stepsIn(before) + 2;
    for (std::size_t i = 0; i < most; ++i) {
        mKeys.finish(PK_LEFT);
        Workplace now = look();
        const bool isOut = now.window != before.window || (before.edited && !now.edited);
        if (isOut || (!now.edited && placesIn(now) == placesIn(before)))
            return {};
        before = std::move(now);
    }
    return "the left key does not lead out of here";
}

} // namespace simulator
