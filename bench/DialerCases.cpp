#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "DisplayAPI/PopupDialerPrivateIfc.h"
#include "kit/OnGuiThread.h"

#include <chrono>
#include <cstdio>
#include <thread>

namespace bench {

namespace {

constexpr int OPENINGS = 100;
constexpr int TEXTS = 2'000;

/// A list whose dialer opens with the first digit.
class ListWithDialer {
public:
    ListWithDialer()
    {
        for (int i = 0; i < 20; ++i)
            mList.append("Row " + std::to_string(i));
        mDialer.setLine2Text("Ada");
        mDialer.addCommand(&mDial);
        mDialer.addCommand(&mSave);
        mList.addDialer(&mDialer);
        mList.showDiallerOnInitialKeyEvent(true);
        mPhone.display().setCurrent(&mList);
    }
    ListWithDialer(const ListWithDialer&) = delete;
    ListWithDialer& operator=(const ListWithDialer&) = delete;
    ~ListWithDialer() { mPhone.display().setCurrent(nullptr); }

    DisplayAPI::PopupDialer& dialer() { return mDialer; }

    /// The list has been on the screen for longer than a frame: a user does not open what he has just closed.
    double open()
    {
        mDialer.dismiss();
        waitUntilShown();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const double spent = cpuToFrame(1, [](int) { return static_cast<PegKey>('4'); });
        if (mDialer.getLineEditText() != "4")
            std::fprintf(stderr, "benchmark broken: the dialer has not opened\n");
        return spent;
    }

private:
    Phone mPhone;
    DisplayAPI::MenuCommand mDial{"Dial", 1}, mSave{"Save", 2};
    DisplayAPI::PopupDialer mDialer{true, 3};
    DisplayAPI::List mList{0};
};

double open()
{
    ListWithDialer shown;
    double spent = 0;
    for (int i = 0; i < OPENINGS; ++i)
        spent += shown.open();
    return spent / OPENINGS;
}

double asText()
{
    ListWithDialer shown;
    shown.open();
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *shown.dialer().getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> dialerCases()
{
    return {{SCREEN, "Dialer over a list, key to finished frame", "us CPU", open},
            {SCREEN, "Dialer with two commands as text", "us", asText}};
}

} // namespace bench
