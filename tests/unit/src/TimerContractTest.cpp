// What a timer promises of each of its operations.

#include "DisplayAPI/Timer.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TimerEvent.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "unit/src/NotingTimer.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Timers : test::WidgetSubject<Timer> {
    explicit Timers(bool hasSide)
    {
        facade = std::make_unique<Timer>(hasSide ? new test::NotingTimer : static_cast<TimerPrivateIfc*>(nullptr));
    }

    static std::string arrival(const std::string& call) { return "Timer::" + call; }

    Command tick{"Tick", Command::ITEM};
    Command* command = &tick;
    CommandListener* listener = reinterpret_cast<CommandListener*>(0x1000);
    TimerEvent* event = reinterpret_cast<TimerEvent*>(0x2000);
};

const bool TIMER_CHECKED =
    test::Contract<Timers>("TimerContractTest")
        .posts("start", 2, [](Timers& t) { t->start(250); })
        .record({.int1 = 250})
        .arrives("start(250)")
        .posts("stop", 3, [](Timers& t) { t->stop(); })
        .arrives("stop()")
        .posts("enableSingleShot", 4, [](Timers& t) { t->enableSingleShot(true); })
        .record({.bool1 = true})
        .arrives("enableSingleShot(true)")
        .posts("addCommandListener", 5, [](Timers& t) { t->addCommandListener(t.listener); })
        .record([](Timers& t) { return Filling{.ptr1 = t.listener}; })
        .arrives("addCommandListener(0x1000)")
        .posts("removeCommandListener", 6, [](Timers& t) { t->removeCommandListener(t.listener); })
        .record([](Timers& t) { return Filling{.ptr1 = t.listener}; })
        .arrives("removeCommandListener(0x1000)")
        .posts("addEventListener", 7, [](Timers& t) { t->addEventListener(t.event); })
        .record([](Timers& t) { return Filling{.ptr1 = t.event}; })
        .arrives("addEventListener(0x2000)")
        .posts("removeEventListener", 8, [](Timers& t) { t->removeEventListener(t.event); })
        .record([](Timers& t) { return Filling{.ptr1 = t.event}; })
        .arrives("removeEventListener(0x2000)")
        .posts("addCommand", 9, [](Timers& t) { t->addCommand(t.command); })
        .record([](Timers& t) { return Filling{.ptr1 = t.command}; })
        .arrives([](Timers& t) { return callText("addCommand", t.command); })
        .completes({-1, 10, 100})
        .check();

} // namespace
