#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupConfirm.h"
#include "DisplayAPI/PopupNotification.h"
#include "DisplayAPI/PopupProgress.h"
#include "host/lcd/Lcd.h"
#include "kit/OnGuiThread.h"

#include <cstdio>

namespace bench {

namespace {

constexpr int OPENINGS = 100;
constexpr int UPDATES = 1'000;
constexpr int TEXTS = 2'000;

/// Popups over a list, of which one is shown.
class ShownPopup {
public:
    ShownPopup()
    {
        for (int i = 0; i < 20; ++i)
            mList.append("Row " + std::to_string(i));
        question.setText("Delete?");
        question.setLine2Text("Ada");
        question.addCommand(&mYes);
        question.addCommand(&mNo);
        notice.setText("Sent");
        notice.setLine2Text("Ada");
        notice.setLine3Text("Just now");
        progress.setText("Update");
        mPhone.display().setCurrent(&mList);
        waitUntilShown();
    }
    ShownPopup(const ShownPopup&) = delete;
    ShownPopup& operator=(const ShownPopup&) = delete;
    ~ShownPopup() { mPhone.display().setCurrent(nullptr); }

private:
    Phone mPhone;
    DisplayAPI::MenuCommand mYes{"Yes", 1}, mNo{"No", 2};
    DisplayAPI::List mList{0};

public:
    DisplayAPI::PopupConfirm question{true};
    DisplayAPI::PopupNotification notice;
    DisplayAPI::PopupProgress progress;
};

/// Microseconds from the call to the finished frame.
double open()
{
    ShownPopup shown;
    const std::uint64_t frames = host::Lcd::current()->picture().frame;
    double spent = 0;
    for (int i = 0; i < OPENINGS; ++i) {
        const auto start = Clock::now();
        shown.notice.show();
        waitUntilShown();
        spent += secondsSince(start);
        shown.notice.dismiss();
        waitUntilShown();
    }
    if (host::Lcd::current()->picture().frame < frames + 2 * OPENINGS)
        std::fprintf(stderr, "benchmark broken: not every popup has been painted\n");
    return spent * 1e6 / OPENINGS;
}

double answer()
{
    ShownPopup shown;
    shown.question.show();
    waitUntilShown();
    return cpuToFrame(OPENINGS, [](int i) { return i % 2 == 0 ? PK_RIGHT : PK_LEFT; });
}

/// Microseconds of each call: a caller waits, and frames are painted meanwhile.
double update()
{
    ShownPopup shown;
    shown.progress.show();
    waitUntilShown();
    const auto start = Clock::now();
    for (int i = 0; i < UPDATES; ++i)
        shown.progress.updateProgressBar(i % 101);
    waitUntilShown();
    return secondsSince(start) * 1e6 / UPDATES;
}

double asText()
{
    ShownPopup shown;
    shown.question.show();
    waitUntilShown();
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *shown.question.getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> popupCases()
{
    return {{SCREEN, "Notification over a list, show() to finished frame", "us", open},
            {SCREEN, "Question with two answers, key to finished frame", "us CPU", answer},
            {SCREEN, "Progress popup on screen, updateProgressBar()", "us", update},
            {SCREEN, "Question with two answers as text", "us", asText}};
}

} // namespace bench
