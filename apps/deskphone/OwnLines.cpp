#include "apps/deskphone/OwnLines.h"

#include <algorithm>

namespace deskphone {

using exchange::Line;

namespace {

/// The file of numbers may begin with another line than the first.
const Line& lineOf(const std::vector<Line>& lines, exchange::LineNumber number)
{
    const auto found = std::ranges::find(lines, number, &Line::number);
    return found != lines.end() ? *found : lines.front();
}

} // namespace

Line OwnLines::find(exchange::LineNumber line) const
{
    return lineOf(all(), line);
}

Line OwnLines::outgoing() const
{
    const std::vector<Line> lines = all();
    const Line& chosen = lineOf(lines, mChosen);
    const auto registered = std::ranges::find_if(lines, &Line::isRegistered);
    return chosen.isRegistered || registered == lines.end() ? chosen : *registered;
}

} // namespace deskphone
