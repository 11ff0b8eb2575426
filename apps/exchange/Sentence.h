#pragma once

#include "apps/exchange/Numbers.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace exchange {

/// Why a sentence cannot be understood, or not be followed.
struct Mistake : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// "line 1 is 3301 "Grace Hopper"", "line 2 is not registered", "line 1 has 3 messages".
struct LineSentence {
    LineNumber line = 0;
    std::variant<Party, bool, int> what; ///< who it is, whether it is registered, its messages
};

/// What somebody does now.
struct Deed {
    enum class Kind { CALLS, ANSWERS, REJECTS, HOLDS, RESUMES, ENDS, TRANSFERS, PLAYS_IN_CONFERENCE };

    Party who; ///< the name empty where it is not said
    Kind kind = Kind::CALLS;
    LineNumber line = 0;                       ///< CALLS; 0: the first there is
    std::string forwardedBy = {};              ///< CALLS: a number, or empty
    std::optional<std::int64_t> patience = {}; ///< CALLS: milliseconds until it gives up
    std::string number = {};                   ///< TRANSFERS, PLAYS_IN_CONFERENCE
    bool isBusy = false;                       ///< ENDS
    std::string text = {};                     ///< ENDS: the failure, or empty
};

using Sentence = std::variant<LineSentence, Number, Deed>;

/// Where a sentence stands. In a file "4711 answers" is what 4711 does when it is called; at run time it answers now.
/// At run time, one clause that names no time is a deed where it can be one; all else is behaviour, for calls to come.
enum class Occasion { IN_FILE, AT_RUN_TIME };

/// Throws a Mistake.
Sentence parseSentence(std::string_view text, Occasion occasion);

} // namespace exchange
