#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "unit/host/variants/telephony/CallRowsTest.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CallConnectedItemPrivateTest : public test::CallRowsTest {
protected:
    Call& make(Call::CallStateIcon state, bool timed = false, bool hasMenu = false)
    {
        item = std::make_unique<Call>(state, "Ada", nullptr, timed, hasMenu);
        list.append(item.get());
        return *item;
    }

    ~CallConnectedItemPrivateTest() override { list.removeAll(); }

    std::unique_ptr<Call> item;
};

TEST_P(CallConnectedItemPrivateTest, EachStateHasItsIconAndAnUnknownOneNone)
{
    Call& call = make(Call::IDLE);
    const Icons icons{nullptr,     &CALL_OUT,      &PROCEEDING,   &BELL,    &CALL_IN, &HANDSET,
                      &HOLD,       &HELD_BY_OTHER, &HELD_BY_BOTH, &RESUME,  &FORWARD, &CONSULTED,
                      &CONFERENCE, &FORWARDED,     &HUNG_UP,      &FAILURE, nullptr};
    for (std::size_t state = 0; state < icons.size(); ++state) {
        call.setState(static_cast<Call::CallStateIcon>(state));
        EXPECT_THAT(iconsOf(call), ElementsAre(icons[state])) << state;
    }
    call.setState(static_cast<Call::CallStateIcon>(-1));
    EXPECT_THAT(iconsOf(call), ElementsAre(nullptr));
}

TEST_P(CallConnectedItemPrivateTest, StateItIsMadeWithIsShown)
{
    EXPECT_THAT(iconsOf(make(Call::HELD)), ElementsAre(&HOLD));
}

TEST_P(CallConnectedItemPrivateTest, LinesWithoutATextTakeNoRoom)
{
    Call& call = make(Call::CONNECTED);
    EXPECT_THAT(linesOf(call), ElementsAre("Ada"));
    call.setThirdLineIconText(FORWARDED_BUSY, "Bert");
    EXPECT_EQ(linesOf(call), fitting({"Ada", "Bert"}));
    call.setSecondLineText("busy");
    EXPECT_EQ(linesOf(call), fitting({"Ada", "busy", "Bert"}));
    call.addGPULine("more");
    EXPECT_EQ(linesOf(call), fitting({"Ada", "busy", "Bert", "more"}));
    call.clearSecondLineText();
    EXPECT_EQ(linesOf(call), fitting({"Ada", "Bert", "more"}));
    call.setThirdLineIconText(NOT_FORWARDED, "");
    EXPECT_EQ(linesOf(call), fitting({"Ada", "more"}));
}

TEST_P(CallConnectedItemPrivateTest, ThirdLineHasTheIconOfTheReasonAlsoAlone)
{
    Call& call = make(Call::IDLE);
    const Icons icons{nullptr, &FORWARDED, &NO_ENTRY, &BELL_OFF, &SERVER_FORWARDED, nullptr};
    for (int type = NOT_FORWARDED; type < static_cast<int>(icons.size()); ++type) {
        call.setThirdLineIconText(static_cast<ForwardedCallType>(type), "Bert");
        EXPECT_THAT(iconsOf(call), ElementsAre(nullptr, icons[static_cast<std::size_t>(type)])) << type;
    }
    call.setThirdLineIconText(FORWARDED_BUSY, "");
    EXPECT_THAT(linesOf(call), ElementsAre("Ada", ""));
}

TEST_P(CallConnectedItemPrivateTest, ThreeFurtherLinesAreTakenAndTheLastGoesFirst)
{
    Call& call = make(Call::IDLE);
    for (const char* line : {"1", "2", "3", "4"})
        call.addGPULine(line);
    EXPECT_EQ(linesOf(call), fitting({"Ada", "1", "2", "3"}));
    call.removeGPULine();
    EXPECT_EQ(linesOf(call), fitting({"Ada", "1", "2"}));
    for (int i = 0; i < 3; ++i)
        call.removeGPULine();
    EXPECT_THAT(linesOf(call), ElementsAre("Ada"));
}

TEST_P(CallConnectedItemPrivateTest, TranslationsFollowTheLanguage)
{
    Call& call = make(Call::IDLE);
    const auto expectAll = [&](const std::string& now) {
        EXPECT_EQ(linesOf(call), fitting({now, now, now}));
        EXPECT_EQ(call.getCallId(), now);
    };
    call.setText(&text);
    call.setSecondLineText(&text);
    call.addGPULine(&text);
    call.setCallId(&text);
    expectAll("en:Key");
    changeLanguage("de");
    expectAll("de:Key");
}

TEST_P(CallConnectedItemPrivateTest, MadeOfATranslationItFollowsTheLanguage)
{
    item = std::make_unique<Call>(Call::IDLE, &text, nullptr, false, false);
    list.append(item.get());
    EXPECT_THAT(linesOf(*item), ElementsAre("en:Key"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(*item), ElementsAre("de:Key"));
}

TEST_P(CallConnectedItemPrivateTest, NoTranslationIsNoText)
{
    Call& call = make(Call::IDLE);
    TranslationInfo* const none = nullptr;
    call.setText(none);
    call.setSecondLineText(none);
    call.setCallId(none);
    EXPECT_THAT(linesOf(call), ElementsAre(""));
    EXPECT_EQ(call.getCallId(), "");
}

TEST_P(CallConnectedItemPrivateTest, PartyDetailsAreTheThreeLines)
{
    Call& call = make(Call::IDLE);
    const CallPartyIdentifier ada("Ada Lovelace", "1");
    CallPartyIdentifier number("", "030 2");
    call.setSecondLineText("old");
    call.setPartyDetails(ada, &number, FORWARDED_NO_ANSWER, "Urgent", &text);
    EXPECT_EQ(linesOf(call), fitting({"Ada Lovelace", "Urgent en:Key", "030 2"}));
    if (!isSmall()) {
        EXPECT_THAT(iconsOf(call), ElementsAre(nullptr, nullptr, &BELL_OFF));
    }
    call.setPartyDetails(CallPartyIdentifier(), nullptr, NOT_FORWARDED, "", nullptr);
    EXPECT_THAT(linesOf(call), ElementsAre("en:Caller.Unknown.XXX"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(call), ElementsAre("de:Caller.Unknown.XXX"));
}

TEST_P(CallConnectedItemPrivateTest, MarksStandInOneOrderWhateverComesFirst)
{
    Call& call = make(Call::CONNECTED, false, true);
    EXPECT_THAT(lookOf(call).marks, ElementsAre(&SMALL_ARROW_RIGHT));
    call.setSecurityState(Call::SECURE);
    call.setDisplayHDIconStatus(true);
    call.setRecordingState(true);
    EXPECT_THAT(lookOf(call).marks, ElementsAre(&RECORDING, &HD, &PADLOCK, &SMALL_ARROW_RIGHT));
    call.setSecurityState(Call::NOT_SECURE);
    call.setDisplayHDIconStatus(false);
    EXPECT_THAT(lookOf(call).marks, ElementsAre(&RECORDING, &PADLOCK_OPEN, &SMALL_ARROW_RIGHT));
    call.setSecurityState(static_cast<Call::CallSecurityState>(77));
    call.setRecordingState(false);
    EXPECT_THAT(lookOf(call).marks, ElementsAre(&SMALL_ARROW_RIGHT));
}

TEST_P(CallConnectedItemPrivateTest, CallThatIsNotEnabledIsGrey)
{
    Call& call = make(Call::CONNECTED);
    EXPECT_TRUE(call.getEnabled());
    EXPECT_FALSE(lookOf(call).dimmed);
    call.enabled(false);
    EXPECT_FALSE(call.getEnabled());
    EXPECT_TRUE(lookOf(call).dimmed);
    call.enabled(true);
    EXPECT_FALSE(lookOf(call).dimmed);
}

TEST_P(CallConnectedItemPrivateTest, PictureAndCallIdAreNotShown)
{
    Call& call = make(Call::CONNECTED);
    const host::LinesLook before = lookOf(call);
    call.setPictureClip(nullptr);
    call.setCallId("7");
    EXPECT_EQ(lookOf(call), before);
    EXPECT_EQ(call.getCallId(), "7");
}

TEST_P(CallConnectedItemPrivateTest, DurationBeginsWithTheTalkAndRunsThroughHold)
{
    Call& call = make(Call::DIALLING, true);
    time.pass(5'000);
    EXPECT_EQ(endOf(call), "");
    call.setState(Call::CONNECTED);
    EXPECT_EQ(endOf(call), "00:00");
    EXPECT_TRUE(lookOf(call).endRuns);
    time.pass(999);
    EXPECT_EQ(endOf(call), "00:00");
    time.pass(1);
    EXPECT_EQ(endOf(call), "00:01");
    call.setState(Call::HELD);
    time.pass(60'000);
    call.setState(Call::CONNECTED);
    EXPECT_EQ(endOf(call), "01:01");
}

TEST_P(CallConnectedItemPrivateTest, DurationGrowsHoursAndStandsWhenItIsStopped)
{
    Call& call = make(Call::CONNECTED, true);
    time.pass(3'599'000);
    EXPECT_EQ(endOf(call), "59:59");
    time.pass(1'000);
    EXPECT_EQ(endOf(call), "1:00:00");
    time.pass(500);
    call.stopDurationTimer();
    time.pass(60'000);
    EXPECT_EQ(endOf(call), "1:00:00");
    EXPECT_FALSE(lookOf(call).endRuns);
    call.setState(Call::CONNECTED);
    time.pass(60'000);
    EXPECT_EQ(endOf(call), "1:00:00");
}

TEST_P(CallConnectedItemPrivateTest, DurationEndsWithTheCall)
{
    for (const auto end : {Call::ENDED, Call::FAILED}) {
        list.removeAll();
        Call& call = make(Call::CONNECTED, true);
        time.pass(7'000);
        call.setState(end);
        time.pass(7'000);
        EXPECT_EQ(endOf(call), "00:07");
    }
}

TEST_P(CallConnectedItemPrivateTest, DurationThatWasStoppedStaysWhenTheCallEndsLater)
{
    Call& call = make(Call::CONNECTED, true);
    time.pass(7'000);
    call.stopDurationTimer();
    time.pass(60'000);
    call.setState(Call::ENDED);
    EXPECT_EQ(endOf(call), "00:07");
}

TEST_P(CallConnectedItemPrivateTest, CallThatIsNotTimedOrStoppedBeforeTheTalkHasNoDuration)
{
    time.pass(1);
    Call& call = make(Call::CONNECTED);
    time.pass(7'000);
    EXPECT_EQ(endOf(call), "");
    list.removeAll();
    Call& stopped = make(Call::DIALLING, true);
    stopped.stopDurationTimer();
    stopped.setState(Call::CONNECTED);
    time.pass(7'000);
    EXPECT_EQ(endOf(stopped), "");
}

TEST_P(CallConnectedItemPrivateTest, ScreenAsTextHasLinesAndDuration)
{
    Call& call = make(Call::CONNECTED, true);
    call.setSecondLineText("Support");
    time.pass(61'000);
    EXPECT_EQ(shown(), "object:\nname:KestrelListBox\n"
                       "subitem:\nname:CallConnectedItem\nstring0:Ada\nstring1:01:01\nstring2:Support\nendsubitem:\n"
                       "end:\n");
}

/// Counts how often the screen has changed.
class Changes : public DisplayEventIfc {
public:
    void displayChanged(std::string) override { ++count; }
    int count = 0;
};

TEST_P(CallConnectedItemPrivateTest, ObserverLearnsOfWhatIsSaidOfACallAndNotOfEachSecond)
{
    Call& call = make(Call::CONNECTED, true);
    Changes changes;
    display.subscribe(&changes);
    call.setSecondLineText("busy");
    EXPECT_EQ(changes.count, 1);
    call.setSecondLineText("busy");
    call.setCallId("7");
    time.pass(5'000);
    EXPECT_EQ(changes.count, 1);
    call.enabled(false);
    EXPECT_EQ(changes.count, 2);
    display.unSubscribe();
}

TEST_P(CallConnectedItemPrivateTest, RightKeyOpensTheMenuThatHasBeenAskedFor)
{
    Call& call = make(Call::CONNECTED, false, true);
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), &list);
    ContextMenu* const menu = call.getContextMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(call.getContextMenu(), menu);
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), &list) << "there is nothing in it";
    MenuCommand hold("Hold", 1);
    menu->addCommand(&hold, nullptr, false);
    press(PK_LEFT);
    EXPECT_EQ(display.getCurrent(), &list);
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), menu);
}

TEST_P(CallConnectedItemPrivateTest, CallThatEndsTakesItsOpenMenuAlong)
{
    Call& call = make(Call::CONNECTED, false, true);
    MenuCommand hold("Hold", 1);
    call.getContextMenu()->addCommand(&hold, nullptr, false);
    press(PK_RIGHT);
    ASSERT_EQ(display.getCurrent(), call.getContextMenu());
    list.remove(&call);
    item.reset();
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_EQ(list.size(), 0);
}

TEST_P(CallConnectedItemPrivateTest, CallWithoutAMenuHasNoneAndNoArrow)
{
    Call& call = make(Call::CONNECTED);
    EXPECT_EQ(call.getContextMenu(), nullptr);
    EXPECT_THAT(lookOf(call).marks, IsEmpty());
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(CallConnectedItemPrivateTest, RowThatIsDeletedLeavesItsList)
{
    make(Call::CONNECTED, true);
    list.remove(item.get());
    auto* const box = static_cast<KestrelListBox*>(list.getPrivateImpl()->getWidget());
    box->append(item->getPrivateImplemetation()->getKestrelListItem());
    item.reset();
    EXPECT_EQ(box->numItems(), 0);
    time.pass(2'000);
}

INSTANTIATE_ON_PANELS(CallConnectedItemPrivateTest);

} // namespace
