#pragma once

#include <atomic>

namespace test {

// What the program has asked of the heap through new and delete. Under AddressSanitizer, which brings operators of its
// own, nothing is counted.
extern std::atomic<int> gHeapAllocations;
extern std::atomic<int> gHeapReleases;

} // namespace test
