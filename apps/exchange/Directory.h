#pragma once

#include "apps/exchange/Numbers.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace exchange {

/// Who is behind a number.
class Directory {
public:
    /// A call of the telephone's to one of its own lines finds that busy.
    Directory(std::vector<Number> numbers, Numbers::Others everybodyElse, const std::vector<Line>& own);

    /// Where a call to a number comes out, after all that forwards at once.
    struct Destination {
        Party party;
        Party forwardedBy = {};                     ///< who was called, where that is another one
        std::shared_ptr<const Behaviour> behaviour; ///< of one where it rings; else null
        Reason reason = Reason::NONE;               ///< why it does not ring
        std::string text = {};
    };

    /// `hops` counts how often the call has been forwarded, at once or after it has rung: there is an end to it.
    Destination find(const std::string& number, int& hops) const;

    /// The name is empty where it is not known.
    Party party(const std::string& number) const;

    /// Null where nobody has the number. Of everybody else it is what was true at the last question.
    const Number* number(const std::string& number) const;

    /// Puts a number in, or what it does from now on; a name that is not said stays.
    void define(Number number);

    /// The others, without the telephone's own lines.
    std::vector<Party> parties() const;

private:
    const Number* elsewhere(const std::string& number) const;

    std::unordered_map<std::string, Number> mOwn;
    std::vector<Number> mNumbers;
    std::unordered_map<std::string, std::size_t> mPlaces;
    Numbers::Others mEverybodyElse;
    mutable std::unordered_map<std::string, Number> mElsewhere; ///< who has been asked for
};

} // namespace exchange
