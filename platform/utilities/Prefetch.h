#pragma once

/// Asks for the cache line at `address`, which is about to be written: brought for reading it would have to be taken
/// away from the other CPUs once more. Any address will do, null and what is nobody's included.
///
/// On x86-64 spelled out, because compilers make a fetch for reading of the hint unless they are told that the
/// processor knows better. One that does not know it does nothing.
inline void prefetchForWriting(const void* address)
{
#if defined(__x86_64__)
    asm volatile("prefetchw (%0)" : : "r"(address));
#else
    __builtin_prefetch(address, 1);
#endif
}
