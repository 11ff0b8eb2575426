#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "host/input/Keyboard.h"
#include "host/lcd/Lcd.h"
#include "kit/OnGuiThread.h"

#include <cstdio>
#include <ctime>
#include <pthread.h>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr int ROWS = 10'000;
constexpr int MOVES = 500;

std::string entry(int number)
{
    char text[32];
    std::snprintf(text, sizeof text, "Entry %05d", number);
    return text;
}

double appendRows()
{
    Phone phone;
    DisplayAPI::List list(0);
    phone.display().setCurrent(&list);
    waitUntilShown();
    const auto start = Clock::now();
    for (int i = 0; i < ROWS; ++i)
        list.append(entry(i));
    const int rows = list.size();
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    if (rows != ROWS)
        std::fprintf(stderr, "benchmark broken: %d rows\n", rows);
    phone.display().setCurrent(nullptr);
    return milliseconds;
}

/// The rows are there when the display shows them: the panel is painted as far as it is due.
double fillOnGuiThread()
{
    Phone phone;
    DisplayAPI::List list(0);
    phone.display().setCurrent(&list);
    waitUntilShown();
    const auto start = Clock::now();
    DisplayAPI::kit::onGuiThread([&] {
        for (int i = 0; i < ROWS; ++i)
            list.append(entry(i));
    });
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    phone.display().setCurrent(nullptr);
    return milliseconds;
}

/// Microseconds that one change of a list of a million rows takes. On the GUI thread, which is the caller's.
template <typename Change>
double changeOfAMillion(Change change)
{
    constexpr int MILLION = 1'000'000;
    constexpr int CHANGES = 2'000;
    Phone phone;
    double microseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::List list(0);
        std::vector<DisplayAPI::ListItem*> rows;
        rows.reserve(MILLION);
        for (int i = 0; i < MILLION; ++i)
            list.append(rows.emplace_back(new DisplayAPI::ListItem("row", false)));
        const auto start = Clock::now();
        for (int i = 0; i < CHANGES; ++i)
            change(list, rows[static_cast<std::size_t>(i) * 7'919 % MILLION]);
        microseconds = secondsSince(start) * 1e6 / CHANGES;
    });
    return microseconds;
}

double removeRow()
{
    return changeOfAMillion([](DisplayAPI::List& list, DisplayAPI::ListItem* row) {
        list.remove(row);
        list.append(row);
    });
}

double selectRow()
{
    return changeOfAMillion([](DisplayAPI::List& list, DisplayAPI::ListItem* row) { list.setSelected(row); });
}

double removeFirstRow()
{
    return changeOfAMillion([](DisplayAPI::List& list, DisplayAPI::ListItem*) { list.append(list.removeAt(0)); });
}

double processCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The CPU time that the whole process spends on one key, from the press to the finished frame. The loop is given the
/// time to go to sleep before each measurement; a frame's due time is waited for without using the CPU.
double moveSelection()
{
    Phone phone;
    DisplayAPI::List list(0);
    for (int i = 0; i < 50; ++i)
        list.append(entry(i));
    phone.display().setCurrent(&list);
    waitUntilShown();
    double spent = 0;
    for (int i = 0; i < MOVES; ++i) {
        std::this_thread::sleep_for(1ms);
        const double before = processCpuSeconds();
        host::Keyboard::instance().press(i / 40 % 2 == 0 ? PK_DOWN : PK_UP);
        std::this_thread::sleep_for(20ms);
        spent += processCpuSeconds() - before;
    }
    phone.display().setCurrent(nullptr);
    return spent / MOVES * 1e6;
}

} // namespace

std::vector<Case> listCases()
{
    return {{FILLING, "DisplayAPI, on the GUI thread", "ms", fillOnGuiThread},
            {FILLING, "DisplayAPI, by a worker, until shown", "ms", appendRows},
            {SCREEN, "remove(row) and append(row), list of 1,000,000", "us", removeRow},
            {SCREEN, "setSelected(row), list of 1,000,000", "us", selectRow},
            {SCREEN, "removeAt(0) and append(row), list of 1,000,000", "us", removeFirstRow},
            {SCREEN, "Moving the selection by one row, key to finished frame", "us CPU", moveSelection}};
}

} // namespace bench
