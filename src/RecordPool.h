#pragma once

#include "utilities/Prefetch.h"

#include <cstddef>
#include <mutex>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define DISPLAYAPI_HEAP_IS_CHECKED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define DISPLAYAPI_HEAP_IS_CHECKED
#endif
#endif

namespace DisplayAPI {

/// Memory for records of one size that one thread makes and another one deletes, over and over.
///
/// Each thread keeps a few blocks of its own; full batches travel through a depot, so that the threads meet once per
/// BATCH records. The depot's lock is a leaf. Under AddressSanitizer every record is the heap's, so that a use after
/// its end is seen.
template <typename Record>
class RecordPool {
public:
    static void* allocate()
    {
        Cache& cache = gCache;
        if (cache.head == nullptr && !refill(cache))
            return ::operator new(BLOCK_SIZE);
        Block* block = cache.head;
        cache.head = block->next;
        --cache.size;
        fetchForWriting(block->next);
        return block;
    }

    static void release(void* memory) noexcept
    {
        Cache& cache = gCache;
        if (!keeps(cache)) {
            ::operator delete(memory);
            return;
        }
        cache.head = new (memory) Block{cache.head, nullptr};
        if (++cache.size == 2 * BATCH)
            spill(cache);
    }

private:
    static constexpr int BATCH = 64;
    static constexpr int MAX_BATCHES = 1024;

    struct Block {
        Block* next;
        Block* nextBatch;
    };

    static constexpr std::size_t LINE = 64;
    static constexpr std::size_t BLOCK_SIZE = (sizeof(Record) + LINE - 1) / LINE * LINE;

    /// The block that comes next was last written by another CPU: ask for its lines before they are needed.
    static void fetchForWriting(Block* block)
    {
        if (block == nullptr)
            return;
        for (std::size_t line = 0; line < BLOCK_SIZE; line += LINE)
            prefetchForWriting(reinterpret_cast<char*>(block) + line);
    }

    /// Trivial, so that it can still be looked at when the thread's other variables are gone.
    struct Cache {
        Block* head;
        int size;
        bool open;
        bool closed;
    };

    struct Depot {
        std::mutex lock;
        Block* batches = nullptr;
        int size = 0;
    };

    /// Gives a thread's blocks back when the thread ends.
    struct Closer {
        ~Closer()
        {
            Cache& cache = gCache;
            while (cache.head != nullptr) {
                Block* block = cache.head;
                cache.head = block->next;
                ::operator delete(block);
            }
            cache.size = 0;
            cache.closed = true;
        }
    };

    static bool keeps([[maybe_unused]] Cache& cache)
    {
#ifdef DISPLAYAPI_HEAP_IS_CHECKED
        return false;
#else
        if (!cache.open) {
            static thread_local Closer closer;
            static_cast<void>(closer);
            cache.open = true;
        }
        return !cache.closed;
#endif
    }

    static bool refill(Cache& cache)
    {
        if (!keeps(cache))
            return false;
        Depot& common = depot();
        std::lock_guard lock(common.lock);
        if (common.batches == nullptr)
            return false;
        cache.head = common.batches;
        cache.size = BATCH;
        common.batches = cache.head->nextBatch;
        --common.size;
        return true;
    }

    /// Moves the newer half of the cache to the depot, or to the heap when the depot is full.
    static void spill(Cache& cache)
    {
        Block* batch = cache.head;
        Block* last = batch;
        for (int i = 1; i < BATCH; ++i)
            last = last->next;
        cache.head = last->next;
        cache.size -= BATCH;
        last->next = nullptr;
        if (Depot& common = depot(); !accept(common, batch))
            freeAll(batch);
    }

    static bool accept(Depot& common, Block* batch)
    {
        std::lock_guard lock(common.lock);
        if (common.size == MAX_BATCHES)
            return false;
        batch->nextBatch = common.batches;
        common.batches = batch;
        ++common.size;
        return true;
    }

    static void freeAll(Block* block)
    {
        while (block != nullptr) {
            Block* next = block->next;
            ::operator delete(block);
            block = next;
        }
    }

    /// Never destroyed: records may still die after all static objects.
    static Depot& depot()
    {
        static Depot* common = new Depot;
        return *common;
    }

    [[gnu::tls_model("initial-exec")]] static thread_local constinit Cache gCache;
};

template <typename Record>
thread_local constinit typename RecordPool<Record>::Cache RecordPool<Record>::gCache{nullptr, 0, false, false};

} // namespace DisplayAPI
