#include "DisplayAPI/AbbreviatedItem.h"
#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/LineOverviewItem.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/PhonebookItem.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"
#include "utilities/TranslationInfo.h"

#include <array>

using DisplayAPI::AbbreviatedItem;
using DisplayAPI::CallForwardItem;
using DisplayAPI::CallLogMainItem;
using DisplayAPI::Command;
using DisplayAPI::LineOverviewItem;
using DisplayAPI::List;
using DisplayAPI::PhonebookItem;

namespace {

constexpr int THREE_SECONDS = 3'000;

/// What a line goes through, one choice after the other.
struct Step {
    LineOverviewItem::LineState state;
    const char* identity;
};

constexpr std::array<Step, 4> STEPS{{{LineOverviewItem::RINGING, "Ada"},
                                     {LineOverviewItem::IN_USE, "Ada 00:01"},
                                     {LineOverviewItem::HELD, "Ada on hold"},
                                     {LineOverviewItem::IDLE, "4711"}}};

} // namespace

/// Two lines of a telephone, a forwarding, a short dial and an entry of a phonebook. OK has the first line ring, talk,
/// hold, which blinks for three seconds, and end; on the forwarding it turns the check mark.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    TranslationInfo first("Line 1", nullptr), second("Line 2", nullptr), outside("Outside", nullptr);
    List rows(0);
    LineOverviewItem* line = nullptr;
    CallForwardItem* forwarding = nullptr;
    std::size_t step = 0;
    DisplayAPI::kit::Subscription choice(rows, [&](Command*) {
        DisplayAPI::ListItem* const chosen = rows.getSelected();
        if (chosen == forwarding) {
            forwarding->swapCheck();
            forwarding->setTextMain(forwarding->getCheck() ? "Forwarded when busy" : "Not forwarded");
        } else if (chosen == line) {
            const Step& next = STEPS.at(step++ % STEPS.size());
            line->setLineState(next.state);
            line->setLineIdentity(next.identity);
            line->holdItem(next.state == LineOverviewItem::HELD ? THREE_SECONDS : 0);
        }
    });
    phone.run(rows, [&] {
        line = new LineOverviewItem(LineOverviewItem::IDLE, "Office", "4711", &first);
        line->setDisplayHDIconStatus(true);
        forwarding = new CallForwardItem(CallLogMainItem::ICON_FORWARDING_BUSY, "Not forwarded", false, false);
        forwarding->setTextBranch("4713", &outside, CallForwardItem::BRANCH_LINE_1);
        rows.append(line);
        rows.append(new LineOverviewItem(LineOverviewItem::NOT_REGISTERED, "Laboratory", "4712", &second));
        rows.append(forwarding);
        rows.append(new AbbreviatedItem(12, AbbreviatedItem::ICON_NUMBER, "Zoë", false));
        rows.append(new PhonebookItem(PhonebookItem::ICON_MOBILE, true, "Bert", false));
    });
}
