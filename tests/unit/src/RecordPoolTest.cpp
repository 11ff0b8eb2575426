#include "RecordPool.h"

#include "support/CountingHeap.h"
#include "support/Worker.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <thread>
#include <vector>

using DisplayAPI::RecordPool;

namespace {

/// A record of the tests' own, so that nobody else fills or empties its pool.
template <int Number>
struct Record {
    std::array<char, 200> content;
};

template <int Number>
std::vector<void*> allocate(int count)
{
    std::vector<void*> records;
    for (int i = 0; i < count; ++i)
        records.push_back(RecordPool<Record<Number>>::allocate());
    return records;
}

template <int Number>
void release(const std::vector<void*>& records)
{
    for (void* record : records)
        RecordPool<Record<Number>>::release(record);
}

} // namespace

TEST(RecordPoolTest, RecordsThatLiveAtTheSameTimeDoNotOverlap)
{
    const std::vector<void*> records = allocate<1>(500);
    for (std::size_t i = 0; i < records.size(); ++i)
        new (records[i]) Record<1>{{static_cast<char>(i)}};
    for (std::size_t i = 0; i < records.size(); ++i)
        EXPECT_EQ(static_cast<Record<1>*>(records[i])->content[0], static_cast<char>(i));
    release<1>(records);
}

TEST(RecordPoolTest, ARecordSmallerThanALinkHasRoomForOne)
{
    void* const record = RecordPool<char>::allocate();
    RecordPool<char>::release(record);
    void* const again = RecordPool<char>::allocate();
    RecordPool<char>::release(again);
}

TEST(RecordPoolTest, RecordsMayBeReleasedOnAnyThread)
{
    for (int round = 0; round < 20; ++round) {
        const std::vector<void*> records = allocate<2>(300);
        std::thread([&] { release<2>(records); }).join();
    }
}

#ifdef __SANITIZE_ADDRESS__

#include <sanitizer/asan_interface.h>

TEST(RecordPoolTest, AReleasedRecordIsWatchedByTheAddressSanitizer)
{
    void* const volatile record = RecordPool<Record<3>>::allocate();
    EXPECT_FALSE(__asan_address_is_poisoned(record));
    RecordPool<Record<3>>::release(record);
    EXPECT_TRUE(__asan_address_is_poisoned(record));
}

#endif
#if TEST_HEAP_IS_COUNTED

TEST(RecordPoolTest, AReleasedRecordIsUsedAgainFirst)
{
    void* const record = RecordPool<Record<4>>::allocate();
    RecordPool<Record<4>>::release(record);
    EXPECT_EQ(RecordPool<Record<4>>::allocate(), record);
    RecordPool<Record<4>>::release(record);
}

TEST(RecordPoolTest, RecordsThatAreMadeAgainCostNoHeapAllocation)
{
    std::vector<void*> records = allocate<5>(100);
    release<5>(records);

    const int before = test::gHeapAllocations;
    for (void*& record : records)
        record = RecordPool<Record<5>>::allocate();
    EXPECT_EQ(test::gHeapAllocations - before, 0);
    release<5>(records);
}

TEST(RecordPoolTest, RecordsReleasedOnOneThreadAreUsedAgainOnAnother)
{
    constexpr int COUNT = 256;
    std::vector<void*> records = allocate<6>(COUNT);
    test::Worker worker([&] { release<6>(records); });
    worker.join();

    const std::set<void*> released(records.begin(), records.end());
    int reused = 0;
    for (void*& record : records) {
        record = RecordPool<Record<6>>::allocate();
        reused += static_cast<int>(released.count(record));
    }
    EXPECT_GE(reused, COUNT / 2) << "all but what a thread keeps for itself";
    release<6>(records);
}

TEST(RecordPoolTest, AThreadThatEndsGivesItsRecordsBackToTheHeap)
{
    constexpr int COUNT = 50;
    int before = 0;
    std::thread([&] {
        const std::vector<void*> records = allocate<7>(COUNT);
        before = test::gHeapReleases;
        release<7>(records);
        EXPECT_LT(test::gHeapReleases - before, COUNT);
    }).join();
    EXPECT_GE(test::gHeapReleases - before, COUNT);
}

namespace {

/// Releases a record when the thread's other variables, the pool's among them, are gone.
struct LateRelease {
    void* record = nullptr;
    int* releases = nullptr;

    ~LateRelease()
    {
        if (record == nullptr)
            return;
        const int before = test::gHeapReleases;
        RecordPool<Record<8>>::release(record);
        *releases = test::gHeapReleases - before;
    }
};

thread_local LateRelease gLateRelease;

} // namespace

TEST(RecordPoolTest, ARecordReleasedWhileItsThreadEndsGoesToTheHeap)
{
    int releases = 0;
    std::thread([&] {
        gLateRelease.releases = &releases; // made first, so destroyed last
        const std::vector<void*> records = allocate<8>(2);
        RecordPool<Record<8>>::release(records[0]);
        gLateRelease.record = records[1];
    }).join();
    EXPECT_EQ(releases, 1);
}

#endif
