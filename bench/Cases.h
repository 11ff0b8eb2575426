#pragma once

#include "Measure.h"

namespace bench {

constexpr int ROUND_TRIPS = 20'000;
constexpr int POSTS = 400'000;

constexpr const char* PINNED = "Synchronous call with a result, both threads on one CPU";
constexpr const char* UNPINNED = "Synchronous call with a result, two CPUs";
constexpr const char* PINNED_APART = "Synchronous call with a result, threads bound to a CPU each";
constexpr const char* ONE_PRODUCER = "Asynchronous posts until carried out, one producer";
constexpr const char* TWO_PRODUCERS = "Asynchronous posts until carried out, two producers";
constexpr const char* ONE_WITH_PAYLOAD = "Posts with a text and a number, one producer";
constexpr const char* TWO_WITH_PAYLOAD = "Posts with a text and a number, two producers";
constexpr const char* SCALE = "Posts with a text and a number, a facade for each producer";
constexpr const char* TRACED = "Requests that are traced, what that adds to each";
constexpr const char* AMONG_POSTERS = "Waiting caller among 8 posters of 0.4 M/s in all";
constexpr const char* LABELLED_NOTIFICATIONS = "Notifications with a text and a number, in order";
constexpr const char* FILLING = "List of 10,000 rows";
constexpr const char* NOTIFICATIONS = "Notifications in order through the executor";
constexpr const char* OBSERVING = "Observers of the application";
constexpr const char* TEXTBOOK = "reference: mutex, condition variable, deque of functions";
constexpr const char* FUTEX = "reference: one futex word";
constexpr const char* SPINNING = "reference: spinning on one word";
constexpr const char* LIST_WIDGET = "QListWidget";
constexpr const char* LIST_WIDGET_OF_ONE_HEIGHT = "QListWidget, told that rows are of one height";
constexpr const char* SCREEN = "Screen";
constexpr const char* HEAP = "Heap";
constexpr const char* CALLS_IN_A_ROW = "Calls at the exchange, on the virtual clock";

/// Nanoseconds of a synchronous call with a result, the library's and that of the textbook loop.
double libraryCall(Seats seats, int calls);
double textbookCall(Seats seats, int calls);

// Each gives its cases; `directory` is where the benchmark's programs are.
std::vector<Case> libraryCases();
std::vector<Case> traceCases();
std::vector<Case> amongPostersCases();
std::vector<Case> neighbourCases();
std::vector<Case> listCases();
std::vector<Case> menuCases();
std::vector<Case> dialerCases();
std::vector<Case> popupCases();
std::vector<Case> formCases();
std::vector<Case> callLogCases();
std::vector<Case> tabCases();
std::vector<Case> searchListCases();
std::vector<Case> treeCases();
std::vector<Case> callRowsCases();
std::vector<Case> idleCases();
std::vector<Case> desktopCases();
std::vector<Case> callCases();
std::vector<Case> contactSearchCases();
std::vector<Case> incomingCallCases();
std::vector<Case> deskStartCases();
std::vector<Case> deskCallsCases();
std::vector<Case> destroyingCases();
std::vector<Case> repaintCases();
std::vector<Case> screenTextCases();
std::vector<Case> languageCases();
std::vector<Case> observerCases();
std::vector<Case> heapCases(const std::string& directory);
std::vector<Case> firstFrameCases(const std::string& directory);
std::vector<Case> futexCases();
std::vector<Case> mutexLoopCases();
std::vector<Case> bareListCases();
std::vector<Case> libuvCases();
std::vector<Case> glibCases();
std::vector<Case> asioCases();
std::vector<Case> qtCases();
std::vector<Case> listWidgetCases(const std::string& directory);

/// What is to be reached, as ratios of cases.
std::vector<Goal> goals();

/// Nanoseconds per round of `count` rounds of `body`, on the calling thread.
template <typename Body>
double nanosecondsEach(int count, Body body)
{
    const auto start = Clock::now();
    for (int i = 0; i < count; ++i)
        body();
    return secondsSince(start) * 1e9 / count;
}

/// Millions per second.
inline double millionsPerSecond(double count, Clock::time_point start)
{
    return count / secondsSince(start) / 1e6;
}

/// The text of the posts that carry one.
constexpr const char* TEXT = "Entry 00001";

/// What the loop's thread alone counts, for the library as for its peers: on a cache line that no poster looks at.
struct alignas(64) Tally {
    int posts = 0;
    std::size_t letters = 0;

    void add(const std::string& text, int number)
    {
        ++posts;
        letters += text.size() + static_cast<std::size_t>(number % 2);
    }
};

/// Millions per second of posts with a text and a number that a loop carries out.
template <typename Loop>
double postsWithPayload(int producers)
{
    Loop loop;
    Tally tally;
    const auto start = Clock::now();
    runProducers(producers, [&](int) {
        for (int i = 0; i < POSTS / producers; ++i)
            loop.post([&tally, text = std::string(TEXT), i] { tally.add(text, i); });
    });
    loop.call();
    return tally.posts > 0 ? millionsPerSecond(POSTS, start) : 0;
}

/// The same for a peer, as posts and as what its notifications would be.
template <typename Loop>
std::vector<Case> payloadCasesOf(const char* name)
{
    const auto one = [] { return postsWithPayload<Loop>(1); };
    return {{ONE_WITH_PAYLOAD, name, "M/s", one},
            {TWO_WITH_PAYLOAD, name, "M/s", [] { return postsWithPayload<Loop>(2); }},
            {LABELLED_NOTIFICATIONS, name, "M/s", one}};
}

inline std::vector<Case> operator+(std::vector<Case> cases, const std::vector<Case>& more)
{
    cases.insert(cases.end(), more.begin(), more.end());
    return cases;
}

} // namespace bench
