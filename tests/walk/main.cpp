// Presses keys of the desk phone at random, in this process and on the virtual clock:
// key_walk PANEL STEPS [SEED]
// Ends with 0 where nothing has gone wrong and left has led home, else with the keys that repeat it, as a script.

#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/deskphone/Network.h"
#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/toolkit/Loop.h"
#include "kit/Phone.h"
#include "simulator/script/HostPhone.h"
#include "walk/RandomKeys.h"
#include "walk/Walker.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

struct Arguments {
    host::Variant panel;
    int steps;
    unsigned int seed;
};

constexpr unsigned int USUAL_SEED = 1;

/// From a telephone that hangs nobody can be called back.
[[noreturn]] void giveUp(const test::Walker& walker, int steps, const std::string& complaint)
{
    std::printf("# step %d: %s\n", steps, complaint.c_str());
    for (const std::string& line : walker.sinceHome())
        std::printf("%s\n", line.c_str());
    std::fflush(stdout);
    std::_Exit(EXIT_FAILURE);
}

void goForAWalk(simulator::ScriptedPhone& phone, DisplayAPI::Display& display, const Arguments& arguments)
{
    test::Walker walker(phone, display);
    test::RandomKeys keys(arguments.seed);
    for (int done = 0; done < arguments.steps; ++done)
        if (const std::string complaint = walker.step(keys.next()); !complaint.empty())
            giveUp(walker, done + 1, complaint);
    if (const std::string complaint = walker.goHome(); !complaint.empty())
        giveUp(walker, arguments.steps, complaint);
    std::printf("# another screen after %d steps\n", walker.changes());
}

void run(const Arguments& arguments)
{
    host::setVariant(arguments.panel);
    host::Clock::instance().makeVirtual();
    deskphone::Memory memory;
    deskphone::Network network(deskphone::USUAL_NUMBERS, memory.contacts());
    DisplayAPI::kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    deskphone::Desk desk(phone.display(), network.telephony(), "en", memory);
    simulator::HostPhone keys(*host::Lcd::current());
    desk.open();
    std::thread walker([&] {
        goForAWalk(keys, phone.display(), arguments);
        host::Loop::quit();
    });
    phone.run();
    keys.leave();
    walker.join();
}

} // namespace

int main(int count, char** words)
{
    const auto panel = host::variantFromName(count > 1 ? words[1] : "");
    const int steps = count > 2 ? std::atoi(words[2]) : 0;
    if (!panel || steps < 1 || count > 4) {
        std::fprintf(stderr, "usage: key_walk PANEL STEPS [SEED]\n");
        return 2;
    }
    const Arguments arguments{*panel, steps,
                              count > 3 ? static_cast<unsigned int>(std::strtoul(words[3], nullptr, 10)) : USUAL_SEED};
    std::printf("# key_walk %s %d %u\n", words[1], arguments.steps, arguments.seed);
    run(arguments);
    return 0;
}
