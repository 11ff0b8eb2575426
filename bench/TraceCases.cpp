#include "Counter.h"
#include "Phone.h"

#include "host/inspection/RequestTrace.h"

#include <ctime>

namespace bench {

namespace {

double processorNanoseconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

/// Nanoseconds for each of many posts until the last one is carried out.
double postsUntilDone(bool isTraced)
{
    host::RequestTrace::instance().enable(isTraced);
    Phone phone;
    Counter counter;
    const double figure = nanosecondsEach(1, [&] {
        for (int i = 0; i < POSTS; ++i)
            counter.count();
        require(counter.value() == POSTS, "lost posts");
    });
    host::RequestTrace::instance().enable(false);
    return figure / POSTS;
}

/// Nanoseconds of the processor for what is kept of one request, by one thread and so in a row.
double threeEntries()
{
    constexpr int REQUESTS = 1'000'000;
    host::RequestTrace& trace = host::RequestTrace::instance();
    const auto entries = [&trace](int count) {
        for (int i = 0; i < count; ++i) {
            const std::int32_t number = trace.queued(typeid(Counter), i, false);
            trace.begun(number);
            trace.done(number);
        }
    };
    entries(1);
    const double start = processorNanoseconds();
    entries(REQUESTS);
    return (processorNanoseconds() - start) / REQUESTS;
}

/// Off and on in turn, so that what disturbs one disturbs the other as well.
double addedToPosts()
{
    const double off = postsUntilDone(false);
    return postsUntilDone(true) - off;
}

} // namespace

std::vector<Case> traceCases()
{
    return {{TRACED, "Three entries, on one thread", "ns", threeEntries},
            {TRACED, "Asynchronous posts, one producer", "ns", addedToPosts}};
}

} // namespace bench
