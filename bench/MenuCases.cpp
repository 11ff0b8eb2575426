#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/ContextMenuPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "host/lcd/Lcd.h"
#include "kit/OnGuiThread.h"

#include <cstdio>

namespace bench {

namespace {

constexpr int COMMANDS = 20;
constexpr int MOVES = 200;
constexpr int REFILLS = 1'000;
constexpr int TEXTS = 2'000;

/// A menu of twenty commands on the screen.
class ShownMenu {
public:
    ShownMenu()
    {
        for (unsigned long i = 0; i < COMMANDS; ++i)
            mCommands.push_back(std::make_unique<DisplayAPI::MenuCommand>("Command " + std::to_string(i), i));
        refill();
        mPhone.display().setCurrent(&mMenu);
        waitUntilShown();
    }
    ShownMenu(const ShownMenu&) = delete;
    ShownMenu& operator=(const ShownMenu&) = delete;
    ~ShownMenu() { mPhone.display().setCurrent(nullptr); }

    DisplayAPI::ContextMenu& menu() { return mMenu; }

    void refill()
    {
        std::vector<DisplayAPI::MenuCommand*> commands;
        for (const auto& command : mCommands)
            commands.push_back(command.get());
        mMenu.setCommands(commands);
    }

private:
    Phone mPhone;
    std::vector<std::unique_ptr<DisplayAPI::MenuCommand>> mCommands;
    DisplayAPI::ContextMenu mMenu{false};
};

/// Goes through the whole menu again and again: most steps scroll.
double move()
{
    ShownMenu shown;
    return cpuToFrame(MOVES, [](int) { return PK_DOWN; });
}

/// Milliseconds until `workers` have set the commands a thousand times between them, and all is shown.
double refills(int workers)
{
    ShownMenu shown;
    const std::uint64_t frames = host::Lcd::current()->picture().frame;
    const auto start = Clock::now();
    runProducers(workers, [&](int) {
        for (int i = 0; i < REFILLS / workers; ++i)
            shown.refill();
    });
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    const std::uint64_t painted = host::Lcd::current()->picture().frame - frames;
    if (painted > milliseconds / 16 + 3)
        std::fprintf(stderr, "benchmark broken: %d frames\n", static_cast<int>(painted));
    return milliseconds;
}

double asText()
{
    ShownMenu shown;
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *shown.menu().getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> menuCases()
{
    return {{SCREEN, "Context menu of 20 commands, key to finished frame", "us CPU", move},
            {SCREEN, "1,000 x setCommands of 20 on a shown menu, one worker", "ms", [] { return refills(1); }},
            {SCREEN, "1,000 x setCommands of 20 on a shown menu, two workers", "ms", [] { return refills(2); }},
            {SCREEN, "Context menu of 20 commands as text", "us", asText}};
}

} // namespace bench
