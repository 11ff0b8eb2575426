#pragma once

namespace simulator {

/// Whether all other threads of this process sleep and none of them has run while that was looked at.
bool othersAreAtRest();

} // namespace simulator
