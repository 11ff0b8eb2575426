#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/SearchList.h"

namespace bench {

namespace {

constexpr int ROWS = 10'000;
constexpr int MATCHES = 100;
constexpr int STEPS = 100;
constexpr int CHARACTERS = 20;
constexpr int REFILLS = 20;

void fill(DisplayAPI::SearchList& list, int rows)
{
    for (int i = 0; i < rows; ++i)
        list.append("Contact " + std::to_string(i));
}

/// A search list on the screen. Its numbers and a title are there.
class ShownSearchList {
public:
    explicit ShownSearchList(int rows)
    {
        mList.setTitle("Contacts");
        mList.setCountIndicator(ROWS);
        fill(mList, rows);
        mPhone.display().setCurrent(&mList);
        waitUntilShown();
    }
    ShownSearchList(const ShownSearchList&) = delete;
    ShownSearchList& operator=(const ShownSearchList&) = delete;
    ~ShownSearchList() { mPhone.display().setCurrent(nullptr); }

    DisplayAPI::SearchList& operator*() { return mList; }

private:
    Phone mPhone;
    DisplayAPI::SearchList mList;
};

/// Milliseconds.
double built()
{
    ShownSearchList list(0);
    const auto start = Clock::now();
    fill(*list, ROWS);
    waitUntilShown();
    return secondsSince(start) * 1e3;
}

/// Two keys in turn: the text grows.
double keyToFrame()
{
    ShownSearchList list(ROWS);
    (*list).showSearchPopup();
    waitUntilShown();
    return cpuToFrame(CHARACTERS, [](int i) { return static_cast<PegKey>(i % 2 == 0 ? '2' : '3'); });
}

double stepToFrame()
{
    ShownSearchList list(ROWS);
    (*list).showSearchPopup();
    waitUntilShown();
    return cpuToFrame(STEPS, [](int i) { return i % 2 == 0 ? PK_DOWN : PK_UP; });
}

/// What an application does with each key: the matches instead of those before. Milliseconds until they are painted.
double refilled()
{
    ShownSearchList list(MATCHES);
    (*list).showSearchPopup();
    waitUntilShown();
    const auto start = Clock::now();
    for (int i = 0; i < REFILLS; ++i) {
        (*list).clear();
        fill(*list, MATCHES);
        (*list).setSearchCountIndicator(MATCHES - i);
        waitUntilShown();
    }
    return secondsSince(start) * 1e3 / REFILLS;
}

} // namespace

std::vector<Case> searchListCases()
{
    return {{SCREEN, "Search list of 10,000 rows, built by a worker until shown", "ms", built},
            {SCREEN, "Search list of 10,000 rows, a key of 20 to finished frame", "us CPU", keyToFrame},
            {SCREEN, "Search list of 10,000 rows, step under the popup to finished frame", "us CPU", stepToFrame},
            {SCREEN, "Search list, clear, 100 matches and their number, until painted", "ms", refilled}};
}

} // namespace bench
