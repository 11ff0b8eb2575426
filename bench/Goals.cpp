#include "Cases.h"

namespace bench {

std::vector<Goal> goals()
{
    constexpr const char* QT = "Qt, queued invokeMethod";
    constexpr auto LEAST = Goal::AT_LEAST;
    constexpr auto MOST = Goal::AT_MOST;
    return {{ONE_WITH_PAYLOAD, "DisplayAPI", {"libuv"}, LEAST, 2.0},
            {TWO_WITH_PAYLOAD, "DisplayAPI, one facade", {"libuv"}, LEAST, 1.15},
            {TWO_WITH_PAYLOAD, "DisplayAPI, a facade each", {"libuv"}, LEAST, 1.0},
            {LABELLED_NOTIFICATIONS, "DisplayAPI", {"asio", QT}, LEAST, 1.1},
            {UNPINNED, "DisplayAPI", {SPINNING}, MOST, 2.3},
            {UNPINNED, "DisplayAPI", {FUTEX}, MOST, 0.12},
            {PINNED_APART, "DisplayAPI", {SPINNING}, MOST, 2.3},
            {PINNED_APART, "DisplayAPI", {FUTEX}, MOST, 0.12},
            {PINNED, "DisplayAPI", {FUTEX}, MOST, 1.05},
            {AMONG_POSTERS, "median", {}, MOST, 2},
            {AMONG_POSTERS, "99 %", {}, MOST, 60},
            {TRACED, "Three entries, on one thread", {}, MOST, 40},
            {TRACED, "Post and its handling, both threads on one CPU", {}, MOST, 40},
            {FILLING, "DisplayAPI, on the GUI thread", {LIST_WIDGET}, MOST, 0.95},
            {FILLING, "DisplayAPI, by a worker, until shown", {LIST_WIDGET}, MOST, 0.7},
            {FILLING, "DisplayAPI, on the GUI thread", {LIST_WIDGET_OF_ONE_HEIGHT}, MOST, 0.95},
            {FILLING, "DisplayAPI, by a worker, until shown", {LIST_WIDGET_OF_ONE_HEIGHT}, MOST, 0.7},
            {HEAP, "Facade, row and text", {}, MOST, 180},
            {SCREEN, "First frame after process start", {}, MOST, 4.5},
            {SCREEN, "First frame after process start, memory at most", {}, MOST, 8},
            {SCALE, "32", {"1"}, LEAST, 0.5}};
}

} // namespace bench
