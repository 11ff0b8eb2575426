#include "support/CountingHeap.h"

#include <cstdlib>
#include <new>

namespace test {

constinit std::atomic<int> gHeapAllocations{0};
constinit std::atomic<int> gHeapReleases{0};

} // namespace test

#if TEST_HEAP_IS_COUNTED

void* operator new(std::size_t size)
{
    ++test::gHeapAllocations;
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    ++test::gHeapReleases;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

#endif
