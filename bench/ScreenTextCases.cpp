#include "Cases.h"
#include "Frames.h"
#include "Phone.h"
#include "kit/OnGuiThread.h"

#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/List.h"
#include "toolkit/PegThing.h"
#include "utilities/Rect.h"

#include <array>
#include <cstdio>

namespace bench {

namespace {

using DisplayAPI::List;
using DisplayAPIUtils::Rect;
constexpr int READS = 2000;
constexpr int ROWS = 50;

void fill(List& list, const std::string& title)
{
    list.setTitle(title);
    for (int i = 0; i < ROWS; ++i)
        list.append("Entry " + std::to_string(10000 + i));
    list.size();
}

void expectText(const std::string& text, const std::string& wanted)
{
    if (text.find(wanted) == std::string::npos)
        std::fprintf(stderr, "benchmark broken: '%s' is not on the screen\n", wanted.c_str());
}

double readScreen()
{
    Phone phone;
    List list(0);
    fill(list, "Contacts");
    phone.display().setCurrent(&list);
    waitUntilShown();
    expectText(phone.display().serialise(), "string0:Entry 10005");
    const double nanoseconds = nanosecondsEach(READS, [&] { phone.display().serialise(); });
    phone.display().setCurrent(nullptr);
    return nanoseconds / 1e3;
}

/// An observer makes the display describe its displayables.
class Observer : public DisplayAPI::DisplayEventIfc {
    void displayChanged(std::string) override {}
};

/// Sixteen rectangles that share the screen.
std::vector<Rect> tiles()
{
    std::vector<Rect> rects;
    for (int i = 0; i < 16; ++i)
        rects.emplace_back(i % 4 * 60, i / 4 * 32, 60, 32);
    return rects;
}

/// Lists that lie on one another like cards, each a step further down and to the right.
void stack(Phone& phone, std::array<List, 5>& lists)
{
    for (std::size_t i = 0; i < lists.size(); ++i) {
        fill(lists[i], "List " + std::to_string(i));
        phone.display().createServerDisplay(&lists[i]);
    }
    DisplayAPI::kit::onGuiThread([&] {
        for (std::size_t i = 0; i < lists.size(); ++i) {
            const auto step = static_cast<std::int16_t>(i * 12);
            lists[i].getPrivateImpl()->getWidget()->Resize(
                {step, step, static_cast<std::int16_t>(step + 190), static_cast<std::int16_t>(step + 79)});
        }
    });
    waitUntilShown();
}

double readRectangles()
{
    Phone phone;
    Observer observer;
    std::array<List, 5> lists{List(0), List(0), List(0), List(0), List(0)};
    stack(phone, lists);
    phone.display().subscribe(&observer);
    const std::vector<Rect> rects = tiles();
    const std::string text = phone.display().serialiseByRect(rects, true);
    for (std::size_t i = 0; i < lists.size(); ++i)
        expectText(text, "caption:List " + std::to_string(i));
    const double nanoseconds = nanosecondsEach(READS, [&] { phone.display().serialiseByRect(rects, true); });
    phone.display().unSubscribe();
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> screenTextCases()
{
    return {{SCREEN, "serialise() of a full screen, from a worker thread", "us", readScreen},
            {SCREEN, "serialiseByRect(), 16 rectangles over 5 displayables", "us", readRectangles}};
}

} // namespace bench
