#pragma once

#include <atomic>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define TEST_HEAP_IS_COUNTED 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define TEST_HEAP_IS_COUNTED 0
#endif
#endif
#ifndef TEST_HEAP_IS_COUNTED
#define TEST_HEAP_IS_COUNTED 1
#endif

namespace test {

// What the program has asked of the heap through new and delete. Under sanitizers, which bring operators of their own,
// nothing is counted.
extern std::atomic<int> gHeapAllocations;
extern std::atomic<int> gHeapReleases;

} // namespace test
