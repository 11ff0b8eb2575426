#include "walk/Walker.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/Displayable.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "kit/OnGuiThread.h"
#include "presentation/PRESCPresentationManager.h"
#include "simulator/script/ScriptParser.h"
#include "simulator/script/ScriptReport.h"
#include "simulator/script/ScriptRunner.h"
#include "widgets/KestrelListBox.h"

#include <algorithm>

namespace test {

namespace {

constexpr std::chrono::seconds PATIENCE(5);

/// Screens within screens, and as many characters as can be typed into one that left deletes.
constexpr int MOST_STEPS_HOME = 200;
constexpr int STEPS_AT_HOME = 3;

/// Where the telephone is when nobody uses it, besides the screen that it begins with.
constexpr const char* OTHER_HOME = "Desktop";

bool standsOnRow(const KestrelListBox& list)
{
    const int row = list.currentRow();
    return row >= (list.numItems() == 0 ? -1 : 0) && row < std::max(list.numItems(), 1);
}

bool standsOnRows(PegThing& thing)
{
    if (const auto* const list = dynamic_cast<const KestrelListBox*>(&thing); list != nullptr && !standsOnRow(*list))
        return false;
    for (PegThing* child = thing.First(); child != nullptr; child = child->NextSibling())
        if (!standsOnRows(*child))
            return false;
    return true;
}

/// Keeps what goes wrong.
class Complaints final : public simulator::ScriptReport {
public:
    void at(int) override {}
    void note(int, const std::string& text) override { all += text + '\n'; }
    void passed() override {}
    void failed(int, const std::string& reason) override { all += reason; }

    std::string all;
};

} // namespace

Walker::Walker(simulator::ScriptedPhone& phone, DisplayAPI::Display& display) : mPhone(phone), mDisplay(display)
{
    mPhone.settle({});
    mSight = look();
    mHome = mSight.current;
}

std::string Walker::step(const std::string& line)
{
    if (isHome(mSight))
        mSinceHome.clear();
    mSinceHome.push_back(line);
    if (std::string wrong = run(line); !wrong.empty())
        return wrong;
    const DisplayAPI::Displayable* const before = mSight.current;
    mSight = look();
    mChanges += mSight.current != before ? 1 : 0;
    return complaint();
}

std::string Walker::goHome()
{
    int steps = 0;
    for (int atHome = 0; atHome <= STEPS_AT_HOME; ++steps) {
        if (steps == MOST_STEPS_HOME)
            return "left does not lead home";
        const bool isInFields = mSight.name == "Form" && steps % 2 == 0;
        if (std::string wrong = step(isInFields ? "key up" : "key left"); !wrong.empty())
            return wrong;
        if (atHome > 0 && !isHome(mSight))
            return "left leads away from home";
        atHome += isHome(mSight) ? 1 : 0;
    }
    return {};
}

Walker::Sight Walker::look() const
{
    Sight seen;
    DisplayAPI::kit::onGuiThread([&] {
        seen.current = mDisplay.getCurrent();
        if (seen.current != nullptr)
            seen = {seen.current, seen.current->getName(), mDisplay.serialise()};
    });
    return seen;
}

bool Walker::isHome(const Sight& sight) const
{
    return sight.current == mHome || sight.name == OTHER_HOME;
}

std::string Walker::run(const std::string& line)
{
    Complaints complaints;
    const simulator::Script script = simulator::parseScript("walk", line + '\n');
    for (const std::string& error : script.errors)
        complaints.all += error;
    simulator::ScriptRunner(mPhone, complaints, ".", PATIENCE).run(script);
    return complaints.all;
}

std::string Walker::complaint() const
{
    if (mSight.current == nullptr)
        return "no screen is shown";
    if (mSight.text.empty())
        return mSight.name + " shows nothing";
    if (host::isEmpty(mPhone.picture().focus))
        return "nothing has the focus on " + mSight.name;
    if (!DisplayAPI::kit::onGuiThread([] { return standsOnRows(*gpPresent); }).value_or(false))
        return "a list stands on a row that it does not have, on " + mSight.name;
    if (hasGhosts())
        return "something else is left on the panel than there is to see of " + mSight.name;
    return {};
}

bool Walker::hasGhosts() const
{
    return DisplayAPI::kit::onGuiThread([] {
               host::Lcd& panel = *host::Lcd::current();
               panel.paint();
               const host::Picture before = panel.picture();
               panel.invalidate(host::rectAt(0, 0, panel.width(), panel.height()));
               panel.paint();
               return panel.picture().pixels != before.pixels;
           })
        .value_or(true);
}

} // namespace test
