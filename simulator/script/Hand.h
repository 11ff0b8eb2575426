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

    /// `press` presses a key and lets it go that many times, and waits until the telephone has come to rest; `settle`
    /// only waits.
    struct Keys {
        std::function<void(PegKey key, int times)> press;
        std::function<void()> settle;
    };

    Hand(ScriptedPhone& phone, Keys keys, std::chrono::milliseconds patience);

    /// Goes to what any of the texts is, or, where nothing is, to what has one in it: the `nth` of those.
    std::string select(const Texts& wanted, int nth = 1);

    /// And presses OK.
    std::string choose(const Texts& wanted, int nth = 1);

    /// The same of a command, wherever it is offered: where none is that is called so, in the menu that the right key
    /// opens for a row.
    std::string command(const Texts& wanted);

    /// Goes on with the present field's values until it has one of these.
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

    Workplace look(const Texts& wanted = {});
    static Goal goalIn(const Workplace& place, int nth, Among among);
    std::string find(const Texts& wanted, int nth, Among among);
    std::string walk(const Texts& wanted, int nth, Among among);
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
