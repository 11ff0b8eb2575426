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

/// They may also turn in a circle of others.
bool comesBack(const std::vector<Line>& lines, exchange::LineNumber line, const std::string& number)
{
    std::string next = number;
    for (std::size_t hops = 0; hops < lines.size(); ++hops) {
        const auto own = std::ranges::find_if(lines, [&](const Line& one) { return one.party.number == next; });
        if (own == lines.end() || own->number == line)
            return own != lines.end();
        next = own->forwarding.always;
    }
    return true;
}

} // namespace deskphone
