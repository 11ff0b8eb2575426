#pragma once

#include <atomic>
#include <cstdint>
#include <ctime>

namespace host {

/// The kernel's wait queue behind one word of memory, private to the process.

/// Sleeps while `word` holds `expected`, until a wake-up or, where `deadline` is not null, until that moment of
/// CLOCK_MONOTONIC. Returns false when the moment has come. May return without any reason, with true.
bool futexWait(const void* word, std::uint32_t expected, const timespec* deadline = nullptr);

/// Wakes up to `threads` sleepers. Uses `word` as an address only: the memory may be gone.
void futexWake(const void* word, int threads);

} // namespace host
