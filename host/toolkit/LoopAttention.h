#pragma once

namespace host {

/// While one lives, the loop paints a frame as soon as it has nothing else to do, instead of some milliseconds later.
/// For those who look at every screen. Safe from any thread, while the toolkit runs.
class LoopAttention {
public:
    LoopAttention();
    LoopAttention(const LoopAttention&) = delete;
    LoopAttention& operator=(const LoopAttention&) = delete;
    ~LoopAttention();
};

} // namespace host
