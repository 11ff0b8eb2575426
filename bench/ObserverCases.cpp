#include "Cases.h"
#include "Phone.h"
#include "kit/OnGuiThread.h"

#include "DisplayAPI/List.h"
#include "toolkit/PegThing.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <cstdio>
#include <deque>
#include <vector>

namespace bench {

namespace {

constexpr int OBSERVERS = 16'000;
constexpr int LISTS = 4'000;

class Observer : public PegThing {
public:
    ~Observer() override { KestrelApplication::removeObserver(this); }

    int Message(const PegMessage&) override
    {
        ++told;
        return 0;
    }

    static inline int told = 0;
};

using Observers = std::vector<Observer>;

template <typename Act>
double nanosecondsPerObserver(Observers& observers, Act act)
{
    const auto start = Clock::now();
    for (Observer& observer : observers)
        act(observer);
    return secondsSince(start) * 1e9 / OBSERVERS;
}

void begin(Observer& observer)
{
    KestrelApplication::getCurrentApplication()->addObserver(&observer);
}

double add()
{
    Observers observers(OBSERVERS);
    return nanosecondsPerObserver(observers, begin);
}

double tell()
{
    Observers observers(OBSERVERS);
    for (Observer& observer : observers)
        begin(observer);
    Observer::told = 0;
    const auto start = Clock::now();
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de_DE"));
    const double each = secondsSince(start) * 1e9 / OBSERVERS;
    if (Observer::told != OBSERVERS)
        std::fprintf(stderr, "benchmark broken: %d observers have been told\n", Observer::told);
    return each;
}

double remove()
{
    Observers observers(OBSERVERS);
    for (Observer& observer : observers)
        begin(observer);
    return nanosecondsPerObserver(observers, [](Observer& observer) { KestrelApplication::removeObserver(&observer); });
}

double changeLocaleOfLists()
{
    Phone phone;
    double milliseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        std::deque<DisplayAPI::List> lists;
        while (lists.size() < LISTS)
            lists.emplace_back(0);
        const auto start = Clock::now();
        phone.display().localeChanged("de_DE");
        milliseconds = secondsSince(start) * 1e3;
    });
    return milliseconds;
}

} // namespace

std::vector<Case> observerCases()
{
    return {{OBSERVING, "Adding one of 16,000", "ns", add},
            {OBSERVING, "Telling one of 16,000", "ns", tell},
            {OBSERVING, "Removing one of 16,000", "ns", remove},
            {OBSERVING, "Change of locale with 4,000 lists", "ms", changeLocaleOfLists}};
}

} // namespace bench
