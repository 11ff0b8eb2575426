#include "DisplayAPI/CallConnectedItem.h"

#include "DisplayAPI/CallConnectedItemPrivateIfc.h"
#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/List.h"
#include "support/WidgetName.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"
#include "variants/telephony/CallConnectedItemPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using test::Posted;
using test::WidgetName;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Parameters = std::tuple<From, int>;

class CallConnectedItemTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    CallConnectedItemTest() { test::setHardwareVariant(variant()); }

    From from() const { return std::get<0>(GetParam()); }
    int variant() const { return std::get<1>(GetParam()); }
    void run(const std::function<void()>& work) { FacadeTest::run(from(), work); }

    /// Variant 1 has classes of its own, every other variant the small panel's.
    std::string onPanel(const std::string& name) const { return variant() == 1 ? name : name + "WP1"; }
    std::string baseRow() const
    {
        return callText(onPanel("ListItemPrivate"), std::string(), from() == From::GUI_THREAD);
    }

    /// What reaches the sides when a call is made so.
    template <typename... Args>
    std::vector<std::string> made(const Args&... args)
    {
        item.reset();
        reached();
        run([&] { item = std::make_unique<CallConnectedItem>(args...); });
        expectAllOnGuiThread();
        EXPECT_EQ(WidgetName::of(*item), "CallConnectedItem");
        return reached();
    }

    std::unique_ptr<CallConnectedItem> item;
    TranslationInfo text{"Key", nullptr};
    Image* const picture = reinterpret_cast<Image*>(&text); // only its address travels
    Image* const none = nullptr;
};

TEST_P(CallConnectedItemTest, EachConstructorMakesTheBaseRowAndTheCallsOwn)
{
    const auto own = [&](const auto&... args) {
        return ElementsAre(baseRow(), callText(onPanel("CallConnectedItemPrivate"), args...));
    };
    const auto state = static_cast<CallConnectedItem::CallStateIcon>(77);
    const void* const image = picture;
    EXPECT_THAT(made(state, true, false), own(77, std::string(), none, true, false));
    EXPECT_THAT(made(state, false, true), own(77, std::string(), none, false, true));
    EXPECT_THAT(made(state, std::string("Ada"), picture, true, false), own(77, std::string("Ada"), image, true, false));
    EXPECT_THAT(made(state, &text, picture, false, true), own(77, &text, image, false, true));
}

TEST_P(CallConnectedItemTest, AdoptedSideIsShownAndDeletedWithTheRow)
{
    CallConnectedItemPrivateIfc* side = nullptr;
    gui.call([&] { side = new CallConnectedItemPrivate(CallConnectedItem::IDLE, "", nullptr, false, false); });
    EXPECT_THAT(made(side), ElementsAre(baseRow()));
    EXPECT_EQ(item->getPrivateImplemetation(), side);
    EXPECT_EQ(item->getPrivateImpl(), side);
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~CallConnectedItemPrivate()", "~" + onPanel("ListItemPrivate") + "()"));
}

TEST_P(CallConnectedItemTest, ListShowsTheCallsRowAndNotTheBaseRow)
{
    made(CallConnectedItem::CONNECTED, std::string("Ada"), none, true, true);
    EXPECT_EQ(item->getPrivateImplemetation(), item->getPrivateImpl());
    EXPECT_NE(dynamic_cast<CallConnectedItemSide*>(item->getPrivateImplemetation()), nullptr);
    EXPECT_EQ(item->getText(), "");
}

TEST_P(CallConnectedItemTest, CallsOwnSideIsDeletedOnce)
{
    made(CallConnectedItem::CONNECTED, true, true);
    carryOut(from(), *item, 13);
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(),
                ElementsAre("~" + onPanel("CallConnectedItemPrivate") + "()", "~" + onPanel("ListItemPrivate") + "()"));
}

TEST_P(CallConnectedItemTest, CodesTenToTwelveMakeTheSide)
{
    made(static_cast<CallConnectedItemPrivateIfc*>(nullptr));
    const auto fill = [this](GuiRequestEvent& request) {
        request.intParam1 = 5;
        request.stringParam1 = "Ada";
        request.ptrParam1 = request.getType() == 11 ? static_cast<void*>(&text) : picture;
        request.ptrParam2 = picture;
        request.boolParam1 = true;
    };
    const std::string own = onPanel("CallConnectedItemPrivate"), gone = "~" + own + "()";
    const void* const image = picture;
    carryOut(from(), *item, 10, fill);
    EXPECT_THAT(reached(), ElementsAre(callText(own, 5, std::string("Ada"), image, true, false)));
    carryOut(from(), *item, 11, fill);
    EXPECT_THAT(reached(), ElementsAre(gone, callText(own, 5, &text, image, true, false)));
    carryOut(from(), *item, 12, fill);
    EXPECT_THAT(reached(), ElementsAre(gone, callText(own, 5, std::string(), none, true, false)));
}

TEST_P(CallConnectedItemTest, WithoutAnApplicationThereIsNoSideAndAListTakesNoSuchRow)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    gui.call([] { KestrelApplication::setCurrentApplication(nullptr); });
    run([&] {
        item = std::make_unique<CallConnectedItem>(CallConnectedItem::CONNECTED, std::string("Ada"), none, true, true);
    });
    gui.call([&] { KestrelApplication::setCurrentApplication(application); });
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
    EXPECT_EQ(WidgetName::of(*item), "CallConnectedItem");
    run([&] {
        List list(1);
        list.append(item.get());
        EXPECT_THAT(list.getItems(), IsEmpty());
    });
    EXPECT_EQ(recorder.count(onPanel("ListBoxPrivate") + "::append"), 0);
}

TEST_P(CallConnectedItemTest, SecondLineIsAnsweredEmptyWhateverHasBeenSet)
{
    made(CallConnectedItem::CONNECTED, true, true);
    run([&] {
        item->setSecondLineText("busy");
        EXPECT_EQ(item->getSecondLineText(), "");
        item->setSecondLineText(&text);
        EXPECT_EQ(item->getSecondLineText(), "");
    });
}

TEST_P(CallConnectedItemTest, PartyIdIsKeptWithoutAnySide)
{
    made(static_cast<CallConnectedItemPrivateIfc*>(nullptr));
    EXPECT_EQ(item->getPartyId(), "");
    run([&] { item->setPartyId("party 7"); });
    for (const From any : {From::GUI_THREAD, From::WORKER})
        FacadeTest::run(any, [&] { EXPECT_EQ(item->getPartyId(), "party 7"); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(CallConnectedItemTest, PartiesAreCopiedWhenTheyAreSet)
{
    made(CallConnectedItem::CONNECTED, true, true);
    run([&] {
        CallPartyIdentifier caller("Ada", "1"), called("Bert", "2");
        item->setPartyDetails(caller, &called, FORWARDED_BUSY, "Urgent", nullptr);
        caller = called = CallPartyIdentifier();
        item->setPartyDetails(caller, nullptr, NOT_FORWARDED, "", &text);
    });
    const std::string own = onPanel("CallConnectedItemPrivate") + "::setPartyDetails";
    const std::string ada = "Ada", bert = "Bert", nobody = "nobody", urgent = "Urgent";
    EXPECT_THAT(reached(), ElementsAre(callText(own, ada, bert, 2, urgent, static_cast<void*>(nullptr)),
                                       callText(own, std::string(), nobody, 0, std::string(), &text)));
}

TEST_P(CallConnectedItemTest, ContextMenuIsTheSides)
{
    made(CallConnectedItem::CONNECTED, true, true);
    ContextMenu* const menu = reinterpret_cast<ContextMenu*>(&text); // only its address travels
    doubles::Answers::instance().menu = menu;
    run([&] { EXPECT_EQ(item->getContextMenu(), menu); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(onPanel("CallConnectedItemPrivate") + "::getContextMenu()"));
    carryOut(from(), *item, 13);
    run([&] { EXPECT_EQ(item->getContextMenu(), nullptr); });
}

INSTANTIATE_TEST_SUITE_P(Requests, CallConnectedItemTest,
                         testing::Combine(testing::Values(From::GUI_THREAD, From::WORKER), testing::Values(0, 1, 2)),
                         [](const testing::TestParamInfo<Parameters>& test) {
                             return test::nameOf(std::get<0>(test.param)) + "OnVariant" +
                                    std::to_string(std::get<1>(test.param));
                         });

using QueuedCallConnectedItemTest = test::SteppedTest;

TEST_F(QueuedCallConnectedItemTest, ConstructorsPostAndReturnAndTheDestructorWaits)
{
    TranslationInfo text("Key", nullptr);
    std::unique_ptr<CallConnectedItem> item;
    const auto posted = [&](auto... args) {
        item.reset();
        return test::postedBy(gui, [&] { item = std::make_unique<CallConnectedItem>(args...); });
    };
    EXPECT_EQ(posted(CallConnectedItem::IDLE, true, true), (Posted{{0, 12}, false}));
    EXPECT_EQ(posted(CallConnectedItem::IDLE, &text, nullptr, true, true), (Posted{{0, 11}, false}));
    EXPECT_EQ(posted(CallConnectedItem::IDLE, std::string(), nullptr, true, true), (Posted{{0, 10}, false}));
    EXPECT_EQ(posted(nullptr), (Posted{{0}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { item.reset(); }), (Posted{{13}, true}));
}

TEST_F(QueuedCallConnectedItemTest, AskingForTheMenuWaitsBehindWhatTheCallerHasPosted)
{
    doubles::Answers::instance().reset();
    doubles::Recorder::instance().clear();
    CallConnectedItem item(CallConnectedItem::CONNECTED, true, true);
    const test::Worker worker([&] {
        item.setCallId("7");
        item.getContextMenu();
    });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_EQ(gui.queued(), 2);
    gui.step();
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
    EXPECT_EQ(doubles::Recorder::instance().count("CallConnectedItemPrivate::getContextMenu"), 1);
}

/// The leak check notices copies that nobody frees.
TEST_F(QueuedCallConnectedItemTest, PartiesOfARecordThatNeverRunsAreFreed)
{
    auto* const item = new CallConnectedItem(CallConnectedItem::CONNECTED, true, true);
    CallPartyIdentifier caller("somebody with a long name, on the heap", "1");
    test::onOtherThread([&] { item->setPartyDetails(caller, &caller, FORWARDED_BUSY, "", nullptr); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(24));
    delete item;
    EXPECT_EQ(gui.queued(), 0);
}

} // namespace
