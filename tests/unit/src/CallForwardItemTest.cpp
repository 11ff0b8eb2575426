#include "DisplayAPI/CallForwardItem.h"

#include "support/WidgetName.h"
#include "unit/src/Posted.h"
#include "unit/src/RowFacadeTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr auto ANY_ICON = static_cast<CallLogMainItem::IconType>(-77);
const std::string TEXT = "Always";
const std::string KEY = "translated key";

class CallForwardItemTest : public test::RowFacadeTest<CallForwardItem> {
protected:
    std::string side() const { return sideClass("CallForwardItemPrivate"); }

    /// The calls that have reached the private side; the row has no other one.
    std::vector<std::string> arrived()
    {
        std::vector<std::string> calls;
        for (const std::string& call : reached())
            calls.push_back(call.substr(call.find("::") + 2));
        return calls;
    }

    TranslationInfo key{"key", nullptr};
};

} // namespace

TEST_P(CallForwardItemTest, IsMadeFromIconTextAndTwoFlags)
{
    for (const bool flag : {true, false}) {
        make(ANY_ICON, TEXT, flag, !flag);
        EXPECT_THAT(reached(), ElementsAre(callText(side(), -77, TEXT, flag, !flag)));
        make(ANY_ICON, &key, flag, !flag);
        EXPECT_EQ(reached().front(), callText(side(), -77, KEY, flag, !flag));
        EXPECT_EQ(test::WidgetName::of(*row), "CallForwardItem");
        row.reset();
        reached();
    }
    expectAllOnGuiThread();
}

TEST_P(CallForwardItemTest, IsMadeFromATranslationAlone)
{
    make(&key);
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(side(), KEY)));
    EXPECT_EQ(row->getPrivateImpl(), row->getPrivateImplemetation());
}

TEST_P(CallForwardItemTest, CodesZeroToTwoPutANewRowInThePlaceOfTheFormerOne)
{
    make(&key);
    reached();
    const auto fill = [&](GuiRequestEvent& r) {
        r.intParam1 = 6;
        r.stringParam1 = TEXT;
        r.ptrParam1 = &key;
        r.boolParam2 = true;
    };
    const std::vector<std::string> makings{callText(side(), 6, TEXT, false, true),
                                           callText(side(), 6, KEY, false, true), callText(side(), KEY)};
    for (const int code : {0, 1, 2}) {
        carryOut(from(), *row, code, fill);
        EXPECT_THAT(reached(), ElementsAre("~" + side() + "()", makings.at(static_cast<std::size_t>(code))));
    }
}

TEST_P(CallForwardItemTest, DestructorDeletesThePrivateSideOnTheGuiThread)
{
    make(&key);
    reached();
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + side() + "()"));
}

TEST_P(CallForwardItemTest, IconIsAForwardingsOrNone)
{
    make(&key);
    const std::vector<std::pair<int, int>> icons{{-1, 0}, {0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0},
                                                 {5, 5},  {6, 6}, {7, 7}, {8, 0}, {77, 0}};
    for (const auto& [icon, answer] : icons) {
        doubles::Answers::instance().icon = icon;
        run([&, expected = answer] { EXPECT_EQ(row->iconType(), expected) << doubles::Answers::instance().icon; });
    }
}

/// The list item's operations meet the row's own codes.
TEST_P(CallForwardItemTest, ListItemsTextIsTheMainText)
{
    make(&key);
    reached();
    ListItem& item = *row;
    run([&] { EXPECT_EQ(item.getText(), from() == From::GUI_THREAD ? "key" : "main text"); });
    using Calls = std::vector<std::string>;
    EXPECT_EQ(arrived(), from() == From::GUI_THREAD ? Calls{} : Calls{"getText()"});
}

TEST_P(CallForwardItemTest, SettingTheListItemsTextChangesNone)
{
    make(&key);
    reached();
    run([&] {
        row->setText("Other");
        row->setText(&key);
    });
    if (from() == From::GUI_THREAD)
        EXPECT_THAT(arrived(), IsEmpty());
    else
        EXPECT_THAT(arrived(), ElementsAre("localeChanged(\"Other\")", "localeChanged(\"\")"));
}

INSTANTIATE_ON_VARIANTS(CallForwardItemTest);

namespace {

class CallForwardItemPostTest : public test::SteppedTest {};

} // namespace

TEST_F(CallForwardItemPostTest, ConstructorsAndDestructorWait)
{
    TranslationInfo key("key", nullptr);
    std::unique_ptr<CallForwardItem> row;
    const auto make = [&](auto... args) {
        return [&row, args...] { row = std::make_unique<CallForwardItem>(args...); };
    };
    const auto end = [&] { row.reset(); };
    EXPECT_EQ(test::postedBy(gui, make(ANY_ICON, TEXT, true, true)), (Posted{{0}, true}));
    EXPECT_EQ(test::postedBy(gui, end), (Posted{{17}, true}));
    EXPECT_EQ(test::postedBy(gui, make(ANY_ICON, &key, true, true)), (Posted{{1}, true}));
    EXPECT_EQ(test::postedBy(gui, end), (Posted{{17}, true}));
    EXPECT_EQ(test::postedBy(gui, make(&key)), (Posted{{2}, true}));
}
