#include "Cases.h"
#include "Phone.h"
#include "kit/OnGuiThread.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"

#include <cstdio>
#include <latch>

namespace bench {

namespace {

constexpr int ROWS = 10'000;
constexpr int OTHER_REQUESTS = 10'000;

/// A facade that many requests are queued for.
class Bystander : public DisplayAPI::Widget {
public:
    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override { signalComplete(request); }
};

/// How long the GUI thread needs to clear a list of rows that a worker has made, while others have requests queued.
double clearRows()
{
    Phone phone;
    DisplayAPI::List list(0);
    Bystander bystander;
    for (int i = 0; i < ROWS; ++i)
        list.append(new DisplayAPI::ListItem("Entry", false));
    if (list.size() != ROWS)
        std::fprintf(stderr, "benchmark broken: rows are missing\n");

    double milliseconds = 0;
    std::latch busy(1);
    std::latch queued(1);
    std::thread clearing([&] {
        DisplayAPI::kit::onGuiThread([&] {
            busy.count_down();
            queued.wait();
            const auto start = Clock::now();
            list.clear();
            milliseconds = secondsSince(start) * 1e3;
        });
    });
    busy.wait();
    for (int i = 0; i < OTHER_REQUESTS; ++i)
        bystander.postEventAsync(1);
    queued.count_down();
    clearing.join();
    DisplayAPI::kit::onGuiThread([] {}); // a facade outlives the requests that are being carried out for it
    return milliseconds;
}

} // namespace

std::vector<Case> destroyingCases()
{
    return {{SCREEN, "Clearing 10,000 rows behind 10,000 other requests", "ms", clearRows}};
}

} // namespace bench
