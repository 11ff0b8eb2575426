// Every request of a display: what its operation posts, and what of it reaches the private side.

#include "DisplayAPI/DisplayRequestEvent.h"

#include "DisplayAPI/Display.h"
#include "doubles/DisplayPrivateDouble.h"
#include "unit/src/FacadeTest.h"
#include "utilities/Semaphore.h"

using namespace DisplayAPI;
using test::From;
using testing::ElementsAre;

namespace {

using Record = DisplayRequestEvent;
using Code = Record::DisplayRequests;

Displayable* const SCREEN = reinterpret_cast<Displayable*>(0x1000);
const std::vector<DisplayAPIUtils::Rect> RECTS(2);

/// An operation with its code, the same as a record filled by hand, and the call that has to arrive.
struct Operation {
    const char* name;
    int code;
    std::function<void(Display&)> call;
    std::function<Record*(Display*, Code, Semaphore*)> record;
    std::string arrives;
    bool waits = true;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

Record* bare(Display* display, Code code, Semaphore* done)
{
    return new Record(display, code, done, false);
}

Record* withTrue(Display* display, Code code, Semaphore* done)
{
    return new Record(display, code, done, true);
}

Record* withScreen(Display* display, Code code, Semaphore* done)
{
    return new Record(display, code, done, SCREEN);
}

auto withText(std::string text)
{
    return [=](Display* display, Code code, Semaphore* done) { return new Record(display, code, done, text); };
}

auto withNumber(int number)
{
    return [=](Display* display, Code code, Semaphore* done) { return new Record(display, code, done, number); };
}

auto withNumberAndText(int number, std::string text)
{
    return [=](Display* display, Code code, Semaphore* done) { return new Record(display, code, done, number, text); };
}

Record* withRects(Display* display, Code code, Semaphore* done)
{
    return new Record(display, code, done, &RECTS, true);
}

const Operation OPERATIONS[] = {
    {"hide", 0, [](Display& d) { d.hide(); }, bare, "hide()"},
    {"show", 1, [](Display& d) { d.show(); }, bare, "show()"},
    {"setCurrent", 2, [](Display& d) { d.setCurrent(SCREEN); }, withScreen, "setCurrent(0x1000)"},
    {"getCurrent", 3, [](Display& d) { d.getCurrent(); },
     [](Display* display, Code code, Semaphore* done) {
         static Displayable* slot;
         auto* const record = bare(display, code, done);
         record->setCurrentDisplayable(&slot);
         return record;
     },
     "getCurrent()"},
    {"shutdown", 4, [](Display& d) { d.shutdown(); }, bare, "shutdown()"},
    {"localeChanged", 5, [](Display& d) { d.localeChanged("de"); }, withText("de"), "localeChanged(\"de\")"},
    {"dateFormatChanged", 6, [](Display& d) { d.dateFormatChanged("d.m."); }, withText("d.m."),
     "dateFormatChanged(\"d.m.\")"},
    {"timeFormatChanged", 7, [](Display& d) { d.timeFormatChanged("24"); }, withText("24"),
     "timeFormatChanged(\"24\")"},
    {"serialise", 8, [](Display& d) { d.serialise(); }, bare, "serialise()"},
    {"createServerDisplay", 9, [](Display& d) { d.createServerDisplay(SCREEN); }, withScreen,
     "createServerDisplay(0x1000)"},
    {"setMaximised", 10, [](Display& d) { d.setMaximised(true); }, withTrue, "setMaximised(true)"},
    {"getDisplayedRects", 11, [](Display& d) { d.getDisplayedRects(); }, bare, "getDisplayedRects()"},
    {"serialiseByRect", 12, [](Display& d) { d.serialiseByRect(RECTS, true); }, withRects, "serialiseByRect(2, true)"},
    {"setSystemWindowSize", 14, [](Display& d) { d.setSystemWindowSize(3); }, withNumber(3), "setSystemWindowSize(3)",
     false},
    {"setSystemWindowText", 15, [](Display& d) { d.setSystemWindowText(2, "busy"); }, withNumberAndText(2, "busy"),
     "setSystemWindowText(2, \"busy\")", false},
    {"setSystemWindowTop", 16, [](Display& d) { d.setSystemWindowTop(9); }, withNumber(9), "setSystemWindowTop(9)"},
    {"showTimeInSystemWindow", 17, [](Display& d) { d.showTimeInSystemWindow(true); }, withTrue,
     "showTimeInSystemWindow(true)"},
    {"setTimeInSystemWindow", 18, [](Display& d) { d.setTimeInSystemWindow(7, 5, 9); }, withText("07:05:09"),
     "setTimeInSystemWindow(7, 5, 9)"},
    {"setTimer", 19, [](Display& d) { d.setTimer("0:01"); }, withText("0:01"), "setTimer(\"0:01\")"},
    {"stopTimer", 20, [](Display& d) { d.stopTimer(); }, bare, "stopTimer()"},
    {"setSoftwareType", 21, [](Display& d) { d.setSoftwareType("any"); }, withText("any"), "setSoftwareType(\"any\")"},
    {"setStatusMessage", 22, [](Display& d) { d.setStatusMessage("saved", 5); }, withNumberAndText(5, "saved"),
     "setStatusMessage(\"saved\", 5)"},
    {"copy", 23, [](Display& d) { d.copy("text"); }, withText("text"), "copy(\"text\")"},
    {"paste", 24, [](Display& d) { d.paste(); },
     [](Display* display, Code code, Semaphore* done) {
         static std::string slot;
         auto* const record = bare(display, code, done);
         record->setStringReturnValue(&slot);
         return record;
     },
     "paste()"},
};

using Parameters = std::tuple<Operation, From>;

class DisplayRequestTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    const Operation& operation() const { return std::get<0>(GetParam()); }
    From from() const { return std::get<1>(GetParam()); }
    std::string arrival() const { return "display: " + operation().arrives; }

    doubles::DisplayPrivateDouble* const side = new doubles::DisplayPrivateDouble;
    Display display{side};
};

} // namespace

TEST_P(DisplayRequestTest, OperationReachesThePrivateSideOnTheGuiThread)
{
    run(from(), [&] { operation().call(display); });
    EXPECT_EQ(recorder.last(arrival()).thread, gui.threadId());
    if (from() == From::GUI_THREAD) {
        EXPECT_THAT(reached(), ElementsAre(arrival()));
    } else {
        const std::string post = operation().waits ? "display: postEvent(" : "display: postEventAsync(";
        EXPECT_THAT(reached(), ElementsAre(post + std::to_string(operation().code) + ")", arrival()));
    }
}

TEST_P(DisplayRequestTest, RecordWithTheCodeReachesThePrivateSideAndIsCompleted)
{
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    Record* const record = operation().record(&display, static_cast<Code>(operation().code), &done);
    if (from() == From::WORKER) {
        side->postEventAsync(record);
    } else {
        gui.call([&] { display.processDisplayRequest(record); });
        delete record;
    }
    EXPECT_TRUE(done.take(-1));
    EXPECT_EQ(recorder.last(arrival()).thread, gui.threadId());
    EXPECT_EQ(recorder.texts().back(), arrival());
}

TEST_P(DisplayRequestTest, RecordWithoutASemaphoreIsCarriedOutWithNobodyWaiting)
{
    side->postEvent(operation().record(&display, static_cast<Code>(operation().code), nullptr));
    gui.settle();
    EXPECT_EQ(recorder.texts().back(), arrival());
}

INSTANTIATE_TEST_SUITE_P(Operations, DisplayRequestTest,
                         testing::Combine(testing::ValuesIn(OPERATIONS),
                                          testing::Values(From::GUI_THREAD, From::WORKER)),
                         [](const testing::TestParamInfo<Parameters>& test) {
                             return std::string(std::get<0>(test.param).name) + "From" +
                                    test::nameOf(std::get<1>(test.param));
                         });
