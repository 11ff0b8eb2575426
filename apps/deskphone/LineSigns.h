#pragma once

#include "DisplayAPI/LineOverviewItem.h"
#include "apps/deskphone/Calls.h"

#include <string>
#include <vector>

class TranslatorIfc;

namespace deskphone {

/// How a line stands: what goes on there, and else what is in the way of it, first.
DisplayAPI::LineOverviewItem::LineState stateOf(const exchange::Line& line, const std::vector<const PhoneCall*>& calls);

/// What is said of a line in that state, in the language of the moment; empty where it is idle.
std::string wordsFor(DisplayAPI::LineOverviewItem::LineState state, const exchange::Line& line,
                     TranslatorIfc& translator);

/// "Line 2", in the language of the moment.
std::string nameOf(const exchange::Line& line, TranslatorIfc& translator);

/// What the telephone tells of its lines where nobody asks: at home, and on the status line.
struct LineSigns {
    std::string name = {};                 ///< of the line that calls go out on
    std::string state = {};                ///< what is the matter with it; mostly empty
    std::string status = {};               ///< both, as short as a status line wants it
    std::vector<std::string> notices = {}; ///< what keeps calls from coming, with the line's name
    std::string forwardedTo = {};          ///< where the line sends all its calls; empty: nowhere
    bool forwards = false;                 ///< one of the lines does, if only when it is busy
    bool isQuiet = false;                  ///< one of the lines wants no calls
    int messages = 0;                      ///< that wait on all lines

    bool operator==(const LineSigns&) const = default;
};

LineSigns signsOf(const std::vector<exchange::Line>& lines, const exchange::Line& outgoing, TranslatorIfc& translator);

} // namespace deskphone
