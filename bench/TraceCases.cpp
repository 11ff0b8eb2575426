#include "Counter.h"
#include "Phone.h"

#include "host/inspection/RequestTrace.h"

#include <ctime>

namespace bench {

namespace {

double processorNanoseconds(clockid_t whose)
{
    timespec now;
    clock_gettime(whose, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

/// Nanoseconds of the processor, both threads' together on one, for each of many posts until the last one is carried
/// out.
double costOfPost(bool isTraced)
{
    host::RequestTrace::instance().enable(isTraced);
    const SeatedCaller caller(ONE_CPU);
    Phone phone(ONE_CPU);
    Counter counter;
    const double start = processorNanoseconds(CLOCK_PROCESS_CPUTIME_ID);
    for (int i = 0; i < POSTS; ++i)
        counter.count();
    require(counter.value() == POSTS, "lost posts");
    const double figure = (processorNanoseconds(CLOCK_PROCESS_CPUTIME_ID) - start) / POSTS;
    host::RequestTrace::instance().enable(false);
    return figure;
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
    const double start = processorNanoseconds(CLOCK_THREAD_CPUTIME_ID);
    entries(REQUESTS);
    return (processorNanoseconds(CLOCK_THREAD_CPUTIME_ID) - start) / REQUESTS;
}

/// Off and on in turn, so that what disturbs one disturbs the other as well.
double addedToPosts()
{
    const double off = costOfPost(false);
    return costOfPost(true) - off;
}

} // namespace

std::vector<Case> traceCases()
{
    return {{TRACED, "Three entries, on one thread", "ns", threeEntries},
            {TRACED, "Post and its handling, both threads on one CPU", "ns", addedToPosts}};
}

} // namespace bench
