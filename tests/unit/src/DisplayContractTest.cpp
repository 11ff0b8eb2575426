// What a display promises of each of its operations.

#include "DisplayAPI/Display.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayEventFilter.h"
#include "DisplayPrivate.h"
#include "doubles/DisplayPrivateDouble.h"
#include "support/FacadeContract.h"
#include "utilities/Semaphore.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

const std::vector<DisplayAPIUtils::Rect> RECTS(2);
Displayable* const SCREEN = reinterpret_cast<Displayable*>(0x1000);

/// A display's requests: other records, on their way through the private side.
struct DisplayCarrier {
    using Record = DisplayRequestEvent;

    /// The slots go by the answer's type.
    struct Slot {};
    static constexpr Slot ANSWER{};

    struct Done : Semaphore {
        Done() : Semaphore(NOT_AVAILABLE, 2, false) {}
        int times() { return take(0) ? 1 + times() : 0; }
    };

    static Record* make(Display& display, int code, const Filling& filling, Semaphore* done)
    {
        const auto type = static_cast<Record::DisplayRequests>(code);
        if (filling.ptr1 == &RECTS)
            return new Record(&display, type, done, &RECTS, filling.bool1);
        if (filling.ptr1 != nullptr)
            return new Record(&display, type, done, SCREEN);
        if (filling.int1 != -1)
            return new Record(&display, type, done, filling.int1, filling.text1);
        if (!filling.text1.empty())
            return new Record(&display, type, done, filling.text1);
        return new Record(&display, type, done, filling.bool1);
    }

    static void expect(Record& record, std::string* text, Slot) { record.setStringReturnValue(text); }
    static void expect(Record& record, Displayable** current, Slot) { record.setCurrentDisplayable(current); }
    static void expect(Record& record, Record::Rects** rects, Slot) { record.setDisplayedRectsReturnValue(rects); }
    static void carryOut(Display& display, Record& record) { display.processDisplayRequest(&record); }
    static void post(Display&, Record* record)
    {
        postEventHelper(record, DisplayEventFilter::getFilterPointer(), false);
    }

    static std::vector<int> queuedCodes(const test::SteppedLoop& gui)
    {
        std::vector<int> codes;
        for (const PegMessage& message : gui.messages())
            codes.push_back(static_cast<Record*>(message.pData)->getType());
        return codes;
    }
};

struct Displays {
    using Carrier = DisplayCarrier;
    static constexpr bool CAN_BE_BARE = false;
    static constexpr bool PURGES = false; // the display's own filter does

    explicit Displays(bool)
    {
        side->current = SCREEN;
        side->clipboard = "copied";
    }

    Display& operator*() const { return *display; }
    Display* operator->() const { return display.get(); }
    void end() { display.reset(); }

    static std::string arrival(const std::string& call) { return "display: " + call; }
    static bool isArrival(const std::string& note) { return !note.starts_with("display: post"); }

    doubles::DisplayPrivateDouble* side = new doubles::DisplayPrivateDouble;
    std::unique_ptr<Display> display = std::make_unique<Display>(side);
};

const bool DISPLAY_CHECKED =
    test::Contract<Displays>("DisplayContractTest")
        .waits("hide", 0, [](Displays& d) { d->hide(); })
        .arrives("hide()")
        .waits("show", 1, [](Displays& d) { d->show(); })
        .arrives("show()")
        .waits("setCurrent", 2, [](Displays& d) { d->setCurrent(SCREEN); })
        .record({.ptr1 = SCREEN})
        .arrives("setCurrent(0x1000)")
        .waits("getCurrent", 3, SCREEN, nullptr, [](Displays& d) { return d->getCurrent(); })
        .arrives("getCurrent()")
        .needsAddress()
        .waits("shutdown", 4, [](Displays& d) { d->shutdown(); })
        .arrives("shutdown()")
        .waits("localeChanged", 5, [](Displays& d) { d->localeChanged("de"); })
        .record({.text1 = "de"})
        .arrives("localeChanged(\"de\")")
        .waits("dateFormatChanged", 6, [](Displays& d) { d->dateFormatChanged("d.m."); })
        .record({.text1 = "d.m."})
        .arrives("dateFormatChanged(\"d.m.\")")
        .waits("timeFormatChanged", 7, [](Displays& d) { d->timeFormatChanged("24"); })
        .record({.text1 = "24"})
        .arrives("timeFormatChanged(\"24\")")
        .waits("serialise", 8, [](Displays& d) { d->serialise(); })
        .arrives("serialise()")
        .waits("createServerDisplay", 9, [](Displays& d) { d->createServerDisplay(SCREEN); })
        .record({.ptr1 = SCREEN})
        .arrives("createServerDisplay(0x1000)")
        .waits("setMaximised", 10, [](Displays& d) { d->setMaximised(true); })
        .record({.bool1 = true})
        .arrives("setMaximised(true)")
        .waits(
            "getDisplayedRects", 11, [](Displays& d) { return &d.side->displayedRects; }, nullptr,
            [](Displays& d) { return d->getDisplayedRects(); })
        .arrives("getDisplayedRects()")
        .waits("serialiseByRect", 12, [](Displays& d) { d->serialiseByRect(RECTS, true); })
        .record({.bool1 = true, .ptr1 = &RECTS})
        .arrives("serialiseByRect(2, true)")
        .posts("setSystemWindowSize", 14, [](Displays& d) { d->setSystemWindowSize(3); })
        .record({.int1 = 3})
        .arrives("setSystemWindowSize(3)")
        .posts("setSystemWindowText", 15, [](Displays& d) { d->setSystemWindowText(2, "busy"); })
        .record({.text1 = "busy", .int1 = 2})
        .arrives("setSystemWindowText(2, \"busy\")")
        .waits("setSystemWindowTop", 16, [](Displays& d) { d->setSystemWindowTop(9); })
        .record({.int1 = 9})
        .arrives("setSystemWindowTop(9)")
        .waits("showTimeInSystemWindow", 17, [](Displays& d) { d->showTimeInSystemWindow(true); })
        .record({.bool1 = true})
        .arrives("showTimeInSystemWindow(true)")
        .waits("setTimeInSystemWindow", 18, [](Displays& d) { d->setTimeInSystemWindow(7, 5, 9); })
        .record({.text1 = "07:05:09"})
        .arrives("setTimeInSystemWindow(7, 5, 9)")
        .waits("setTimer", 19, [](Displays& d) { d->setTimer("0:01"); })
        .record({.text1 = "0:01"})
        .arrives("setTimer(\"0:01\")")
        .waits("stopTimer", 20, [](Displays& d) { d->stopTimer(); })
        .arrives("stopTimer()")
        .waits("setSoftwareType", 21, [](Displays& d) { d->setSoftwareType("any"); })
        .record({.text1 = "any"})
        .arrives("setSoftwareType(\"any\")")
        .waits("setStatusMessage", 22, [](Displays& d) { d->setStatusMessage("saved", 5); })
        .record({.text1 = "saved", .int1 = 5})
        .arrives("setStatusMessage(\"saved\", 5)")
        .waits("copy", 23, [](Displays& d) { d->copy("text"); })
        .record({.text1 = "text"})
        .arrives("copy(\"text\")")
        .waits("paste", 24, "copied", "", [](Displays& d) { return d->paste(); })
        .arrives("paste()")
        .needsAddress()
        .completes({-1, 13, 25, 1000})
        .check();

} // namespace
