#include "DisplayAPI/ConferenceCallItem.h"

#include "DisplayAPI/ConferenceCallItemPrivateIfc.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "support/WidgetName.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"
#include "utilities/TranslationInfo.h"
#include "variants/telephony/ConferenceCallItemPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using test::Posted;
using test::WidgetName;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Parameters = std::tuple<From, int>;

class ConferenceCallItemTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    ConferenceCallItemTest() { test::setHardwareVariant(variant()); }

    From from() const { return std::get<0>(GetParam()); }
    int variant() const { return std::get<1>(GetParam()); }
    void run(const std::function<void()>& work) { FacadeTest::run(from(), work); }

    std::string onPanel(const std::string& name) const { return variant() == 1 ? name : name + "WP1"; }
    std::string own() const { return onPanel("ConferenceCallItemPrivate"); }
    std::string baseRow() const
    {
        return callText(onPanel("ListItemPrivate"), std::string(), from() == From::GUI_THREAD);
    }
    const void* itself() const { return static_cast<const Widget*>(item.get()); }

    template <typename... Args>
    void make(const Args&... args)
    {
        item.reset();
        reached();
        run([&] { item = std::make_unique<ConferenceCallItem>(args...); });
        expectAllOnGuiThread();
        EXPECT_EQ(WidgetName::of(*item), "ConferenceCallItem");
    }

    std::unique_ptr<ConferenceCallItem> item;
    TranslationInfo text{"Key", nullptr};
};

constexpr auto STATE = static_cast<CallConnectedItem::CallStateIcon>(77);

TEST_P(ConferenceCallItemTest, RequestThatMakesACallLeavesNoConferenceBehind)
{
    make(STATE, "Talk", false);
    carryOut(from(), *item, 12);
    EXPECT_THAT(reached(), testing::Contains("~" + own() + "()"));
    EXPECT_NE(item->getPrivateImplemetation(), nullptr);
    EXPECT_EQ(item->getTitleMember(), nullptr);
    run([&] { item->appendCall(nullptr, false); });
    run([&] { item.reset(); });
}

TEST_P(ConferenceCallItemTest, ConstructorsMakeTheBaseRowAndOneSideOnly)
{
    for (const bool open : {true, false}) {
        make(STATE, std::string("Talk"), open);
        EXPECT_THAT(reached(), ElementsAre(baseRow(), callText(own(), 77, std::string("Talk"), itself(), open)));
        make(STATE, &text, open);
        EXPECT_THAT(reached(), ElementsAre(baseRow(), callText(own(), 77, &text, itself(), open)));
    }
}

TEST_P(ConferenceCallItemTest, SideIsTheCallsAsWellAndDeletedOnce)
{
    make(STATE, std::string("Talk"), true);
    EXPECT_EQ(dynamic_cast<ConferenceCallItemPrivateIfc*>(item->getPrivateImplemetation()), item->getPrivateImpl());
    EXPECT_NE(item->getPrivateImpl(), nullptr);
    reached();
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + own() + "()", "~" + onPanel("ListItemPrivate") + "()"));
}

TEST_P(ConferenceCallItemTest, AdoptedSideIsTheCallsAsWellAndDeletedOnce)
{
    ConferenceCallItemPrivateIfc* side = nullptr;
    gui.call([&] { side = new ConferenceCallItemPrivate(STATE, "", nullptr, false); });
    make(side);
    EXPECT_THAT(reached(), ElementsAre(baseRow()));
    EXPECT_EQ(item->getPrivateImpl(), side);
    run([&] {
        item->setState(CallConnectedItem::HELD);
        item.reset();
    });
    EXPECT_THAT(reached(), ElementsAre("ConferenceCallItemPrivate::setState(6)", "~ConferenceCallItemPrivate()",
                                       "~" + onPanel("ListItemPrivate") + "()"));
}

TEST_P(ConferenceCallItemTest, WithoutASideThereAreNoMembersAndNothingIsShown)
{
    make(static_cast<ConferenceCallItemPrivateIfc*>(nullptr));
    reached();
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
    run([&] {
        item->localeChanged("de");
        EXPECT_EQ(item->getIndexedMember(0), nullptr);
        EXPECT_EQ(item->getTitleMember(), nullptr);
        EXPECT_EQ(item->getSelectedMember(), nullptr);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ConferenceCallItemTest, WithoutAnApplicationThereIsNoSide)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    gui.call([] { KestrelApplication::setCurrentApplication(nullptr); });
    run([&] { item = std::make_unique<ConferenceCallItem>(STATE, std::string("Talk"), true); });
    gui.call([&] { KestrelApplication::setCurrentApplication(application); });
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
}

TEST_P(ConferenceCallItemTest, MissingMemberIsNull)
{
    make(STATE, std::string("Talk"), true);
    run([&] { EXPECT_EQ(item->getIndexedMember(3), nullptr); });
}

TEST_P(ConferenceCallItemTest, CodesHundredAndHundredOneMakeTheSide)
{
    make(static_cast<ConferenceCallItemPrivateIfc*>(nullptr));
    reached();
    const auto fill = [this](GuiRequestEvent& request) {
        request.intParam1 = 5;
        request.stringParam1 = "Talk";
        request.ptrParam1 = &text;
        request.boolParam1 = true;
    };
    carryOut(from(), *item, 100, fill);
    EXPECT_THAT(reached(), ElementsAre(callText(own(), 5, std::string("Talk"), itself(), true)));
    carryOut(from(), *item, 101, fill);
    EXPECT_THAT(reached(), ElementsAre("~" + own() + "()", callText(own(), 5, &text, itself(), true)));
    EXPECT_NE(item->getPrivateImpl(), nullptr);
}

TEST_P(ConferenceCallItemTest, LocaleReachesTheRowOnTheGuiThread)
{
    make(STATE, std::string("Talk"), true);
    reached();
    run([&] { item->localeChanged("de"); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(own() + "::localeChanged(\"de\")"));
}

INSTANTIATE_TEST_SUITE_P(Requests, ConferenceCallItemTest,
                         testing::Combine(testing::Values(From::GUI_THREAD, From::WORKER), testing::Values(0, 1, 2)),
                         [](const testing::TestParamInfo<Parameters>& test) {
                             return test::nameOf(std::get<0>(test.param)) + "OnVariant" +
                                    std::to_string(std::get<1>(test.param));
                         });

using QueuedConferenceCallItemTest = test::SteppedTest;

TEST_F(QueuedConferenceCallItemTest, ConstructorsWaitForTheirOwnSide)
{
    TranslationInfo text("Key", nullptr);
    std::unique_ptr<ConferenceCallItem> item;
    const auto posted = [&](auto... args) {
        item.reset();
        return test::postedBy(gui, [&] { item = std::make_unique<ConferenceCallItem>(args...); });
    };
    EXPECT_EQ(posted(STATE, std::string(), true), (Posted{{0, 100}, true}));
    EXPECT_EQ(posted(STATE, &text, true), (Posted{{0, 101}, true}));
    EXPECT_EQ(posted(nullptr), (Posted{{0}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { item.reset(); }), (Posted{{13}, true}));
}

TEST_F(QueuedConferenceCallItemTest, LocaleChangeWaits)
{
    ConferenceCallItem item(STATE, std::string("Talk"), true);
    const test::Worker worker([&] { item.localeChanged("de"); });
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
