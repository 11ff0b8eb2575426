#pragma once

#include "apps/exchange/Line.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// What somebody does by himself while he speaks with this telephone.
struct TalkStep {
    enum class Kind { HOLDS, RESUMES, ENDS, TRANSFERS, PLAYS_IN_CONFERENCE };

    Kind kind;
    std::int64_t after = 0; ///< milliseconds since the step before, the first since one speaks
    std::string number = {};

    bool operator==(const TalkStep&) const = default;
};

/// What a number does.
struct Behaviour {
    enum class Arrival { ANSWERS, IS_BUSY, NEVER_ANSWERS, REJECTS, FAILS, FORWARDS };

    Arrival arrival = Arrival::NEVER_ANSWERS;   ///< when it is called
    std::int64_t after = 0;                     ///< milliseconds since it rings
    std::string text = {};                      ///< FAILS: the reason; FORWARDS: the number
    std::vector<TalkStep> talk = {};            ///< one after the other
    std::optional<std::int64_t> callsBack = {}; ///< milliseconds after the end of a call to it

    bool operator==(const Behaviour&) const = default;
};

struct Number {
    Party party;
    std::shared_ptr<const Behaviour> behaviour; ///< never null
};

/// Who is at an exchange: a telephone's own lines and the others with their behaviour.
struct Numbers {
    std::vector<Line> lines;    ///< in the order of their numbers; never none
    std::vector<Number> others; ///< no number twice
    using Others = std::function<std::optional<Number>(const std::string& number)>;
    Others everybodyElse = {}; ///< who has a number that nobody of these has. Quick, and without the exchange

    std::vector<std::string> errors; ///< one sentence each, with file and line; what is wrong is left out

    /// Reads one sentence a line; empty lines and lines that begin with # are nothing, nor is a byte order mark.
    /// Where it is not said who a line of the telephone's is there are two, 101 and 102, or the next numbers that
    /// nobody has.
    static Numbers parse(const std::string& fileName, std::string_view text);

    /// As above; a file that cannot be read is an error and has nobody in it.
    static Numbers read(const std::string& fileName);
};

} // namespace exchange
