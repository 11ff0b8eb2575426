#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/KVXList.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TabScreenPrivateIfc.h"
#include "kit/OnGuiThread.h"

namespace bench {

namespace {

constexpr int MOVES = 200;
constexpr int ROWS = 100;
constexpr int TEXTS = 2'000;

void fill(DisplayAPI::List& list, const std::string& title)
{
    list.setTitle(title);
    for (int i = 0; i < ROWS; ++i)
        list.append(title + " " + std::to_string(i));
}

/// Two lists of a hundred rows under tabs, on the screen; the keys are the tab bar's.
class ShownTabs {
public:
    ShownTabs()
    {
        fill(mAll, "All calls");
        fill(mMissed, "Missed calls");
        mTabs.addTab("All", &mAll, false);
        mTabs.addTab("Missed", &mMissed, false);
        mPhone.display().setCurrent(&mTabs);
        waitUntilShown();
        cpuToFrame(1, [](int) { return PK_UP; });
    }
    ShownTabs(const ShownTabs&) = delete;
    ShownTabs& operator=(const ShownTabs&) = delete;
    ~ShownTabs() { mPhone.display().setCurrent(nullptr); }

    DisplayAPI::TabScreen& tabs() { return mTabs; }

private:
    Phone mPhone;
    DisplayAPI::List mAll{0}, mMissed{0};
    DisplayAPI::TabScreen mTabs{DisplayAPI::TabScreen::CALLS, true};
};

/// From one tab to the other and back: everything but the bar's frame is painted anew.
double change()
{
    ShownTabs shown;
    return cpuToFrame(MOVES, [](int number) { return number % 2 == 0 ? PK_RIGHT : PK_LEFT; });
}

double microsecondsOfText(DisplayAPI::Displayable& displayable)
{
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *displayable.getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    return nanoseconds / 1e3;
}

double tabsAsText()
{
    ShownTabs shown;
    return microsecondsOfText(shown.tabs());
}

double linesAsText()
{
    Phone phone;
    DisplayAPI::KVXList list;
    for (int i = 0; i < ROWS; ++i)
        list.append("Service " + std::to_string(i));
    list.setDisplayText(0, "Account 4711");
    list.setDisplayText(1, "Balance 12.50");
    phone.display().setCurrent(&list);
    waitUntilShown();
    const double microseconds = microsecondsOfText(list);
    phone.display().setCurrent(nullptr);
    return microseconds;
}

} // namespace

std::vector<Case> tabCases()
{
    return {{SCREEN, "Tab of 100 rows, key to finished frame", "us CPU", change},
            {SCREEN, "Tab screen with a list as text", "us", tabsAsText},
            {SCREEN, "KVX list of two lines and 100 rows as text", "us", linesAsText}};
}

} // namespace bench
