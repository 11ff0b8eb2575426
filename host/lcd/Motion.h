#pragma once

namespace host {

/// Whether texts that run on the panel turn page by page instead of moving all the time: some people feel sick from
/// what moves, or cannot read it. Safe from any thread; a text follows with its next step.
class Motion {
public:
    static bool isReduced();
    static void reduce(bool reduced);
};

} // namespace host
