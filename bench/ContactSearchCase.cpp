#include "Cases.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/exchange/Exchange.h"
#include "apps/exchange/HostClock.h"
#include "host/input/Keyboard.h"
#include "kit/Phone.h"

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr int KEYS = 300;
constexpr int FIND_CONTACT = 7; ///< the menu's row

/// Of the screens, which the next frame shows: frames have an interval.
std::vector<std::string> shownTexts()
{
    std::vector<std::string> texts;
    std::istringstream lines(DisplayAPI::Display::latest()->serialise());
    for (std::string line; std::getline(lines, line);)
        texts.push_back(line.substr(line.find(':') + 1));
    return texts;
}

void waitUntil(const std::function<bool()>& isTrue)
{
    for (const auto start = Clock::now(); !isTrue(); std::this_thread::sleep_for(200us))
        if (secondsSince(start) > 10)
            throw std::runtime_error("the telephone does not show what is found");
}

void press(PegKey key)
{
    host::Keyboard::instance().press(key);
    host::Keyboard::instance().release(key);
}

void press(PegKey key, const std::string& shown)
{
    press(key);
    waitUntil([&] { return std::ranges::count(shownTexts(), shown) > 0; });
}

/// What has been typed, one of the letters of a key; the screen as text has a question mark for the L with a stroke.
std::string letterIn(const std::vector<std::string>& texts)
{
    const auto found = std::ranges::find_if(texts, [](const std::string& text) { return text.size() == 1; });
    if (found == texts.end())
        return {};
    return *found == "?" ? "Ł" : *found;
}

/// Milliseconds from each key until the list has what it finds. Letters that find as many as the one before do not
/// count: nobody sees when they have.
std::vector<double> searches(const deskphone::ContactBook& book)
{
    const std::string all = std::to_string(book.size());
    press(PK_OK, "Call log");
    for (int row = 0; row < FIND_CONTACT; ++row)
        press(PK_DOWN);
    press(PK_OK, "SearchPopup");
    std::vector<double> times;
    std::map<std::string, std::string> counts;
    for (const char* const each : {"J", "K", "L", "Ł", "5"})
        counts[each] = std::to_string(book.search(each, 0).count) + "/" + all;
    std::string letter;
    while (times.size() < KEYS) {
        std::this_thread::sleep_for(20ms); // the frames before are painted
        const std::string former = letter;
        const auto start = Clock::now();
        press(static_cast<PegKey>('5'));
        waitUntil([&] {
            const std::vector<std::string> texts = shownTexts();
            letter = letterIn(texts);
            return !letter.empty() && letter != former && std::ranges::count(texts, counts[letter]) > 0;
        });
        if (counts[letter] != counts[former])
            times.push_back(secondsSince(start) * 1e3);
    }
    return times;
}

/// The 99th percentile.
double slowSearch()
{
    exchange::HostClock clock;
    exchange::Exchange exchange(exchange::Numbers::parse("bench", ""), clock);
    deskphone::Memory memory;
    DisplayAPI::kit::Phone phone({.hardware = "plain"});
    deskphone::Desk desk(phone.display(), exchange, "en", memory);
    std::vector<double> times;
    desk.open();
    std::thread user([&] {
        times = searches(memory.contacts());
        phone.quit();
    });
    phone.run();
    user.join();
    std::ranges::sort(times);
    return times[times.size() * 99 / 100];
}

} // namespace

std::vector<Case> contactSearchCases()
{
    return {{SCREEN, "Desk phone, key until the list has the matches of 10,000 contacts, 99th percentile", "ms",
             slowSearch}};
}

} // namespace bench
