// Keys on the desk phone, on the virtual clock, with calls that come meanwhile: after each step it has to show a screen
// with a focus, and in the end left leads home.

#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/deskphone/Network.h"
#include "fuzz/check.h"
#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/toolkit/Loop.h"
#include "kit/Phone.h"
#include "simulator/script/HostPhone.h"
#include "walk/Walker.h"

#include <array>
#include <thread>
#include <vector>

namespace {

constexpr std::size_t MOST_STEPS = 60;

constexpr std::array KEYS = {"up",   "down", "left", "right", "ok",    "0",         "1",          "2",    "3",
                             "4",    "5",    "6",    "7",     "8",     "9",         "star",       "hash", "hook",
                             "fpk1", "fpk2", "fpk3", "fpk8",  "fpk16", "volume-up", "volume-down"};
constexpr std::array CALLERS = {"4711", "4712", "0301000000", "99"};
constexpr std::array LINES = {" calls", " calls line 2"};

/// A byte is a step, sometimes with another one behind it.
std::string stepIn(test::Bytes& bytes)
{
    const unsigned int what = bytes.next();
    if (what < 200)
        return std::string("key ") + KEYS[what % KEYS.size()];
    if (what < 220)
        return std::string("hold ") + KEYS[bytes.below(KEYS.size())] + " " + std::to_string(100 + what % 20 * 100);
    if (what < 235)
        return "wait " + std::to_string(bytes.next() * 20);
    if (what < 240)
        return "advance " + std::to_string(bytes.next() * 2'000);
    return std::string("exchange ") + CALLERS[what % CALLERS.size()] + LINES[bytes.below(LINES.size())];
}

std::vector<std::string> stepsIn(test::Bytes& bytes)
{
    std::vector<std::string> steps;
    while (!bytes.isEmpty() && steps.size() < MOST_STEPS)
        steps.push_back(stepIn(bytes));
    return steps;
}

void checkStep(const test::Walker& walker, const std::string& complaint)
{
    if (complaint.empty())
        return;
    for (const std::string& line : walker.sinceHome())
        std::fprintf(stderr, "%s\n", line.c_str());
    test::check(false, complaint);
}

void press(simulator::ScriptedPhone& phone, DisplayAPI::Display& display, const std::vector<std::string>& steps)
{
    test::Walker walker(phone, display);
    for (const std::string& step : steps)
        checkStep(walker, walker.step(step));
    checkStep(walker, walker.step("advance 180000")); // left leads out of no call that still comes
    checkStep(walker, walker.goHome());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    test::Bytes bytes(test::textOf(data, size));
    constexpr std::array PANELS = {"plain", "narrow", "wp1"};
    constexpr std::array LANGUAGES = {"en", "ar", "de", "fr", "ja"};
    host::setVariant(*host::variantFromName(PANELS[bytes.below(PANELS.size())]));
    const char* const language = LANGUAGES[bytes.below(LANGUAGES.size())];
    const std::vector<std::string> steps = stepsIn(bytes);

    host::Clock::instance().makeVirtual();
    deskphone::Memory memory;
    deskphone::Network network(deskphone::USUAL_NUMBERS, memory.contacts());
    DisplayAPI::kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    deskphone::Desk desk(phone.display(), network.telephony(), language, memory);
    simulator::HostPhone keys(*host::Lcd::current());
    desk.open();
    std::thread user([&] {
        press(keys, phone.display(), steps);
        host::Loop::quit();
    });
    phone.run();
    keys.leave();
    user.join();
    return 0;
}
