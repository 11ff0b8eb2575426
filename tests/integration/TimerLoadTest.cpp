// Timers and tickers are made, used and destroyed by several threads while time passes.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Ticker.h"
#include "DisplayAPI/Timer.h"
#include "DisplayAPI/TimerEvent.h"
#include "support/Application.h"
#include "support/GuiLoop.h"

#include <array>
#include <atomic>
#include <memory>

using DisplayAPI::Command;
using DisplayAPI::Ticker;
using DisplayAPI::Timer;
using test::Chance;
using test::GuiLoop;

namespace {

constexpr int THREADS = 3;
constexpr int CALLS = 600;

std::atomic<int> gExpiries{0};

/// Gives itself away when it is told after its timer's end.
class Watcher : public DisplayAPI::TimerEvent {
public:
    ~Watcher() override { mEnded = true; }

    void timerExpired() override
    {
        EXPECT_FALSE(mEnded);
        ++gExpiries;
    }

private:
    std::atomic<bool> mEnded{false};
};

/// A timer with what it needs; goes first.
struct Clockwork {
    Command command{"Tick", Command::ITEM};
    Watcher watcher;
    Timer timer{1};
};

void use(Clockwork& work, Chance& chance)
{
    switch (chance.below(8)) {
    case 0: work.timer.start(chance.below(4) - 1); break;
    case 1: work.timer.stop(); break;
    case 2: work.timer.enableSingleShot(chance.oneIn(2)); break;
    case 3: work.timer.removeEventListener(&work.watcher); break;
    case 4: work.timer.addCommand(chance.oneIn(2) ? &work.command : nullptr); break;
    default: work.timer.addEventListener(&work.watcher); break;
    }
}

class TimerLoadTest : public test::SeededTest {};

TEST_P(TimerLoadTest, NoListenerIsToldAfterItsTimerIsDestroyed)
{
    gExpiries = 0;
    GuiLoop gui;
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        std::array<std::unique_ptr<Clockwork>, 5> works;
        for (int call = 0; call < CALLS || gExpiries == 0; ++call) {
            auto& work = works[static_cast<std::size_t>(chance.below(5))];
            if (!work)
                work = std::make_unique<Clockwork>();
            else if (chance.oneIn(10))
                work.reset();
            else
                use(*work, chance);
        }
    });
    EXPECT_GT(gExpiries, 0);
}

TEST_P(TimerLoadTest, TimersMayGoWhileTheirCreationIsOnItsWay)
{
    GuiLoop gui;
    Watcher watcher;
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < 20 * CALLS; ++call) {
            Timer timer(1000);
            timer.addEventListener(&watcher);
            for (int more = chance.below(4); more > 0; --more)
                timer.stop();
        }
    });
}

TEST_P(TimerLoadTest, OneTickerIsWrittenAndReadByAllThreads)
{
    GuiLoop gui;
    auto ticker = std::make_unique<Ticker>("0");
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call) {
            if (chance.oneIn(2))
                ticker->setText(std::to_string(chance.below(THREADS)));
            else
                EXPECT_LT(std::stoi(ticker->getText()), THREADS);
        }
    });
    gui.call([&] { ticker.reset(); });
}

INSTANTIATE_SEEDED(TimerLoadTest);

} // namespace
