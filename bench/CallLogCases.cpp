#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/List.h"
#include "kit/OnGuiThread.h"
#include "utilities/CallPartyIdentifier.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace bench {

namespace {

using DisplayAPI::CallLogMainItem;
using DisplayAPI::List;

constexpr int ENTRIES = 10'000;

std::vector<CallPartyIdentifier> parties()
{
    std::vector<CallPartyIdentifier> parties;
    for (int i = 0; i < ENTRIES; ++i)
        parties.emplace_back("Party " + std::to_string(i), std::to_string(4711 + i));
    return parties;
}

void fill(List& log, std::vector<CallPartyIdentifier>& parties)
{
    int number = 0;
    for (CallPartyIdentifier& party : parties) {
        log.append(new CallLogMainItem(&party, "22.11. 10:41", 1 + number % 4, number < 10, true));
        ++number;
    }
}

/// Milliseconds until a log is on the screen whose rows `make` has made before or makes then.
template <typename Prepare, typename Open>
double untilShown(Prepare prepare, Open open)
{
    Phone phone;
    std::vector<CallPartyIdentifier> all = parties();
    auto log = std::make_unique<List>(0);
    prepare(*log, all);
    static_cast<void>(log->size()); // the loop runs when this is answered
    waitUntilShown();
    const auto start = Clock::now();
    open(*log, all);
    phone.display().setCurrent(log.get());
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    if (log->size() != ENTRIES)
        std::fprintf(stderr, "benchmark broken: %d entries\n", log->size());
    phone.display().setCurrent(nullptr);
    DisplayAPI::kit::onGuiThread([&] { log.reset(); });
    return milliseconds;
}

void nothing(List&, std::vector<CallPartyIdentifier>&) {}

void fillOnGuiThread(List& log, std::vector<CallPartyIdentifier>& parties)
{
    DisplayAPI::kit::onGuiThread([&] { fill(log, parties); });
}

} // namespace

std::vector<Case> callLogCases()
{
    return {{SCREEN, "Call log of 10,000 entries opened, until shown", "ms", [] { return untilShown(fill, nothing); }},
            {SCREEN, "Call log of 10,000 entries made by a worker, until shown", "ms",
             [] { return untilShown(nothing, fill); }},
            {SCREEN, "Call log of 10,000 entries made by the GUI thread, until shown", "ms",
             [] { return untilShown(nothing, fillOnGuiThread); }}};
}

} // namespace bench
