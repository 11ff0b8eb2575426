#pragma once

#include "Measure.h"

namespace bench {

constexpr int ROUND_TRIPS = 20'000;
constexpr int POSTS = 400'000;

constexpr const char* PINNED = "Synchronous call with a result, both threads on one CPU";
constexpr const char* UNPINNED = "Synchronous call with a result, two CPUs";
constexpr const char* ONE_PRODUCER = "Asynchronous posts until carried out, one producer";
constexpr const char* TWO_PRODUCERS = "Asynchronous posts until carried out, two producers";
constexpr const char* NOTIFICATIONS = "Notifications in order through the executor";
constexpr const char* OBSERVING = "Observers of the application";
constexpr const char* TEXTBOOK = "reference: mutex, condition variable, deque of functions";
constexpr const char* SCREEN = "Screen";
constexpr const char* HEAP = "Heap";
constexpr const char* CALLS_IN_A_ROW = "Calls at the exchange, on the virtual clock";

/// Nanoseconds of a synchronous call with a result, the library's and that of the textbook loop.
double libraryCall(Seats seats, int calls);
double textbookCall(Seats seats, int calls);

// Each gives its cases; `directory` is where the benchmark's programs are.
std::vector<Case> libraryCases();
std::vector<Case> neighbourCases();
std::vector<Case> listCases();
std::vector<Case> menuCases();
std::vector<Case> dialerCases();
std::vector<Case> popupCases();
std::vector<Case> formCases();
std::vector<Case> callLogCases();
std::vector<Case> tabCases();
std::vector<Case> treeCases();
std::vector<Case> callRowsCases();
std::vector<Case> idleCases();
std::vector<Case> desktopCases();
std::vector<Case> callCases();
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
std::vector<Case> libuvCases();
std::vector<Case> glibCases();
std::vector<Case> asioCases();
std::vector<Case> qtCases();

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

} // namespace bench
