#include "DisplayAPI/LineOverviewItem.h"

#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "pictures/StatusScreens.h"
#include "support/VirtualTime.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBox.h"

namespace {

using DisplayAPI::LineOverviewItem;
using State = LineOverviewItem::LineState;

/// The rows of lines. Blinking waits for the test.
class LineOverviewPictures : public test::VirtualTime, public StatusScreens {
protected:
    LineOverviewItem& add(State state, const std::string& name, const std::string& identity = {},
                          TranslationInfo* prefix = nullptr)
    {
        mLines.push_back(std::make_unique<LineOverviewItem>(state, name, identity, prefix));
        list.append(mLines.back()->getPrivateImplemetation()->getKestrelListItem());
        return *mLines.back();
    }

    int rowsInView() const
    {
        int count = 0;
        while (list.rowArea(list.topRow() + count).bottom >= list.rowArea(list.topRow() + count).top)
            ++count;
        return count;
    }

    KestrelListBox& list = showList("", {});
    TranslationInfo line1{"Line 1", nullptr};
    TranslationInfo line2{"Line 2", nullptr};
    TranslationInfo arabicLine{"الخط 1", nullptr};

private:
    std::vector<std::unique_ptr<LineOverviewItem>> mLines;
};

} // namespace

TEST_P(LineOverviewPictures, EachState)
{
    const std::vector<const char*> names{
        "Idle",       "Dialling",  "Ringing",         "In use",         "Held",           "Held by the other",
        "Conference", "Forwarded", "Message waiting", "Do not disturb", "Not registered", "Failed",
        "Unknown"};
    for (std::size_t state = 0; state < names.size(); ++state)
        add(static_cast<State>(state), names[state]);
    const int step = rowsInView();
    for (int first = 0, number = 1; first < list.numItems(); first += step, ++number) {
        list.setCurrentRow(std::min(first + step, list.numItems()) - 1);
        list.setCurrentRow(first);
        expectScreen("lines-states-" + std::to_string(number));
    }
}

TEST_P(LineOverviewPictures, TwoLinesOfWhichOneIsHighlighted)
{
    add(LineOverviewItem::IN_USE, "Office", "+49 30 1815", &line1).setDisplayHDIconStatus(true);
    LineOverviewItem& held = add(LineOverviewItem::HELD, "Laboratory", "4711", &line2);
    expectScreen("lines");
    held.holdItem(5000);
    expectScreen("lines-hold-on");
    pass(500);
    expectScreen("lines-hold-off");
    EXPECT_EQ(DisplayAPI::listAsText(list),
              "object:\nname:KestrelListBox\n"
              "subitem:\nname:LineOverviewListItem\nstring0:Line 1 Office\nstring1:+49 30 1815\nendsubitem:\n"
              "subitem:\nname:LineOverviewListItem\nstring0:Line 2 Laboratory\nstring1:4711\nendsubitem:\n"
              "end:\n");
}

TEST_P(LineOverviewPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    add(LineOverviewItem::RINGING, "سارة", "4711", &arabicLine).setDisplayHDIconStatus(true);
    expectScreen("lines-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, LineOverviewPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
