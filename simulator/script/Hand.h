#pragma once

#include "host/input/Workplace.h"
#include "simulator/script/ScriptedPhone.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace simulator {

/// Does on a telephone what a user means, by the keys that this takes on its panel. Each operation returns the sentence
/// that says why it cannot; empty when it is done. None looks for anything for longer than `patience` of real time, and
/// each ends: the keys have to bring it nearer.
class Hand {
public:
    using Texts = host::Choices::Texts;

    /// `press` presses a key and lets it go that many times, and waits until the telephone has come to rest; so does
    /// `finish`, once, with a key that does what is meant, and may end the program; `settle` only waits.
    struct Keys {
        std::function<void(PegKey key, int times)> press;
        std::function<void(PegKey key)> finish;
        std::function<void()> settle;
    };

    /// How a text has to be what is looked for. One that has it in it is taken where nothing has come that is it.
    enum class Match { WHOLE, PART };

    Hand(ScriptedPhone& phone, Keys keys, std::chrono::milliseconds patience);

    /// Goes to what is called so, the `nth` of those: of several texts the first one that something is called.
    std::string select(const Texts& wanted, int nth = 1, Match match = Match::WHOLE);

    /// And presses OK.
    std::string choose(const Texts& wanted, int nth = 1, Match match = Match::WHOLE);

    /// The same of a command, wherever it is offered: where none is that is called so, in the menu that the right key
    /// opens for a row.
    std::string command(const Texts& wanted, int nth = 1, Match match = Match::WHOLE);

    /// Goes on with the present field's values until it has the first of these that it can have.
    std::string set(const Texts& wanted);

    /// Has the text in what is typed into; the first digit opens that where it is not there.
    std::string type(const std::string& text);
    std::string dial(const std::string& number);

    /// Presses the left key, and in an edit line as often as it takes to be out of it.
    std::string back();

private:
    using Workplace = host::Workplace;
    using Choices = host::Choices;

    struct Goal {
        Choices::Kind kind = Choices::Kind::ROWS;
        int at = -1; ///< nothing has been found
    };

    enum class Among { ALL, COMMANDS };

    struct Search {
        Texts wanted;
        int nth;
        Among among;
        Match match;
    };

    /// Where the user is, and what he looks for there.
    struct Sight {
        Workplace place;
        Goal goal{};
    };

    Workplace look(const Texts& wanted = {});
    Sight look(const Search& search, Match match);
    static Goal goalIn(const Workplace& place, const Search& search, Match match);
    std::string go(const Search& search);
    std::string find(const Search& search, Match& match);
    std::string walk(const Search& search, Match match);
    std::string choose(const Search& search);
    bool turnTo(const std::string& wanted, PegKey key, std::string& value);
    static int steps(const Choices& choices, int to);
    static PegKey keyTowards(const Workplace& place, const Choices& there, int steps);
    static std::string listing(const Workplace& place, const std::string& what);

    ScriptedPhone& mPhone;
    const Keys mKeys;
    const std::chrono::milliseconds mPatience;
};

/// 'this' or 'that', for people.
std::string anyOf(const std::vector<std::string>& texts);

} // namespace simulator
