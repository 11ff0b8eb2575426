#include "unit/host/variants/idle/IdleDisplayVariantTest.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/Rectangles.h"
#include "host/lcd/Geometry.h"
#include "unit/host/variants/Painted.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Return;

namespace {

constexpr int MINUTE = 60'000;
constexpr int DAY = 24 * 60 * MINUTE;
constexpr int TURN = 4000;

using IdleDisplayPrivateTest = test::IdleDisplayVariantTest;

/// Shows "en " or "de " before each key.
class Translator : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return language + key; }

    std::string language = "en ";
};

/// Whether the panel shows what it would show if all of it were painted now.
bool isPaintedAnew()
{
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    const auto before = lcd.picture();
    lcd.invalidate(host::rectAt(0, 0, lcd.width(), lcd.height()));
    lcd.paint();
    return before.pixels == lcd.picture().pixels;
}

TEST_P(IdleDisplayPrivateTest, SaysItsNameAndItsTexts)
{
    idle->setCurrentPhoneNumber("4711");
    const std::string date = item("Date", isSmall() ? "09.03." : "09.03.2026");
    EXPECT_EQ(shown(), "object:\nname:IdleDisplay\ncaption:4711\n" + date + item("Time", "14:05") + "end:\n");
}

TEST_P(IdleDisplayPrivateTest, IsKnownByItsNumberOrItsName)
{
    idle->setCurrentPhoneNumber("4711");
    idle->setDisplayIdUnicode("Reception");
    EXPECT_THAT(shown(), HasSubstr("caption:4711\n"));
    idle->setUseDisplayId(true);
    EXPECT_THAT(shown(), HasSubstr("caption:Reception\n"));
    idle->setUseDisplayId(false);
    EXPECT_THAT(shown(), HasSubstr("caption:4711\n"));
}

TEST_P(IdleDisplayPrivateTest, CountsWhatWaits)
{
    idle->setMessages(3);
    idle->setMissedCalls(12);
    EXPECT_TRUE(shows(item("Messages", "3")));
    EXPECT_TRUE(shows(item("MissedCalls", "12")));
    idle->setMessages(0);
    idle->setMissedCalls(-1);
    EXPECT_FALSE(shows("Messages"));
    EXPECT_FALSE(shows("MissedCalls"));
}

TEST_P(IdleDisplayPrivateTest, BrandingAndMobileUserComeAndGo)
{
    idle->setBrandingText("Acme");
    idle->displayMobileUserIcon(true, 0);
    EXPECT_TRUE(shows(item("Branding", "Acme")));
    EXPECT_TRUE(shows("subitem:\nname:MobileUser\nendsubitem:\n"));
    idle->setBrandingText("");
    idle->displayMobileUserIcon(false, 0);
    EXPECT_FALSE(shows("Branding"));
    EXPECT_FALSE(shows("MobileUser"));
}

TEST_P(IdleDisplayPrivateTest, AddressesOfBothKindsAreForwarded)
{
    TranslationInfo mailbox("Mailbox", nullptr);
    idle->setForwardingAddress("030");
    EXPECT_TRUE(shows(item("Forwarding", "030")));
    idle->setForwardingAddress(&mailbox);
    EXPECT_TRUE(shows(item("Forwarding", "Mailbox")));
    idle->clearForwardingAddress();
    EXPECT_FALSE(shows("Forwarding"));
    idle->setServerBasedForwardingAddress("040");
    EXPECT_TRUE(shows(item("ServerBasedForwarding", "040")));
    idle->setServerBasedForwardingAddress(&mailbox);
    EXPECT_TRUE(shows(item("ServerBasedForwarding", "Mailbox")));
    idle->clearServerBasedForwardingAddress();
    EXPECT_FALSE(shows("Forwarding"));
}

TEST_P(IdleDisplayPrivateTest, PartyStandsBehindItsText)
{
    Translator translator;
    DisplayablePrivate::commonTranslator = &translator;
    TranslationInfo to("To", nullptr);
    CallPartyIdentifier ada("Ada", "030"), number("", "040"), nobody;
    for (const auto& [party, text] :
         {std::pair(&ada, "To Ada"), {&number, "To 040"}, {&nobody, "To en Caller.Unknown.XXX"}}) {
        idle->setForwardingAddress(&to, party);
        EXPECT_TRUE(shows(item("Forwarding", text))) << shown();
    }
    idle->setForwardingAddress(&to, nullptr);
    EXPECT_TRUE(shows(item("Forwarding", "To")));
    idle->setForwardingAddress(nullptr, &ada);
    EXPECT_TRUE(shows(item("Forwarding", "Ada")));
    idle.reset();
    DisplayablePrivate::commonTranslator = nullptr;
}

TEST_P(IdleDisplayPrivateTest, ArrowStandsAloneWhereItIsAskedFor)
{
    idle->setForwardingIconVisible(true);
    EXPECT_TRUE(shows("subitem:\nname:Forwarding\nendsubitem:\n"));
    idle->setForwardingIconVisible(false);
    EXPECT_FALSE(shows("Forwarding"));
}

TEST_P(IdleDisplayPrivateTest, MessagesAreShownInTurn)
{
    for (const char* message : {"One", "Two"})
        idle->addSystemMessage(message);
    for (const char* message : {"One", "Two", "One"}) {
        EXPECT_TRUE(shows(item("SystemMessage", message))) << message;
        time.pass(TURN);
    }
    idle->clearSystemMessages();
    EXPECT_FALSE(shows("SystemMessage"));
    TranslationInfo three("Three", nullptr);
    idle->addSystemMessage(&three);
    EXPECT_TRUE(shows(item("SystemMessage", "Three")));
    time.pass(TURN);
    EXPECT_TRUE(shows(item("SystemMessage", "Three")));
    idle.reset();
}

TEST_P(IdleDisplayPrivateTest, MessageOnScreenStaysWhenOthersCome)
{
    for (const char* message : {"One", "Two"})
        idle->addSystemMessage(message);
    time.pass(3 * TURN);
    EXPECT_TRUE(shows("Two"));
    idle->addSystemMessage("Three");
    EXPECT_TRUE(shows("Two"));
    idle->setForwardingAddress("030");
    EXPECT_TRUE(shows("Two"));
    idle->clearForwardingAddress();
    EXPECT_TRUE(shows("Two"));
    time.pass(TURN);
    EXPECT_TRUE(shows("Three"));
}

TEST_P(IdleDisplayPrivateTest, AddressesTakeTurnsWithMessagesOnTwoLines)
{
    idle->setForwardingAddress("030");
    idle->setServerBasedForwardingAddress("040");
    idle->addSystemMessage("One");
    for (const char* text : {"030", "040", "One"}) {
        EXPECT_TRUE(shows(text));
        EXPECT_EQ(shows("030") + shows("040") + shows("One"), isSmall() ? 1 : 3);
        time.pass(TURN);
    }
}

TEST_P(IdleDisplayPrivateTest, LanguageChangesTexts)
{
    Translator translator;
    TranslationInfo text("Text", &translator);
    idle->addSystemMessage(&text);
    EXPECT_TRUE(shows(item("SystemMessage", "en Text")));
    MenuCommand translated(new TranslationInfo("Call", &translator), 1);
    idle->addCommand(&translated);
    press(PK_OK);
    translator.language = "de ";
    display.localeChanged("de_DE");
    EXPECT_TRUE(shows(item("MenuItem", "de Call")));
    press(PK_LEFT);
    EXPECT_TRUE(shows(item("SystemMessage", "de Text")));
    idle->clearSystemMessages();
    idle->setForwardingAddress(&text);
    EXPECT_TRUE(shows(item("Forwarding", "de Text")));
    idle.reset();
}

TEST_P(IdleDisplayPrivateTest, ReadingDirectionTurnsPlainTextsRound)
{
    idle->setCurrentPhoneNumber("4711");
    test::expectPaintedAsAnew([&] { display.localeChanged("ar_EG"); });
}

TEST_P(IdleDisplayPrivateTest, NewFormatOfDatesIsPainted)
{
    test::expectPaintedAsAnew([&] { display.dateFormatChanged("yyyy-mm-dd"); });
}

TEST_P(IdleDisplayPrivateTest, FormatsAreThoseOfTheTelephone)
{
    display.dateFormatChanged("yyyy-mm-dd");
    display.timeFormatChanged("12h");
    EXPECT_TRUE(shows(item("Date", isSmall() ? "03-09" : "2026-03-09")));
    EXPECT_TRUE(shows(item("Time", "2:05 PM")));
    display.dateFormatChanged("mm/dd/yyyy");
    EXPECT_TRUE(shows(item("Date", isSmall() ? "03/09" : "03/09/2026")));
}

TEST_P(IdleDisplayPrivateTest, ClockGoesOnAndTheDateWithIt)
{
    testing::StrictMock<doubles::MockDisplayEvent> observer;
    display.subscribe(&observer);
    EXPECT_CALL(observer, displayChanged).Times(testing::AtLeast(1));
    time.pass(MINUTE);
    EXPECT_TRUE(shows(item("Time", "14:06")));
    time.pass(DAY - MINUTE);
    EXPECT_TRUE(shows(item("Date", isSmall() ? "10.03." : "10.03.2026")));
    EXPECT_TRUE(shows(item("Time", "14:05")));
    display.unSubscribe();
}

TEST_P(IdleDisplayPrivateTest, TimeThatItShowedWhenItWasHiddenIsPaintedAgain)
{
    time.pass(MINUTE);
    display.hide();
    time.pass(15 * MINUTE);
    display.show();
    test::expectPaintedAsAnew([&] { display.setTimeInSystemWindow(14, 6, 0); });
}

TEST_P(IdleDisplayPrivateTest, HasAClockOfItsOwnWhereTheStatusLinesHaveNone)
{
    display.showTimeInSystemWindow(false);
    EXPECT_TRUE(shows("name:Time"));
}

TEST_P(IdleDisplayPrivateTest, ItsOwnClockTurnsWithTheMinuteWhereverInASecondItBegan)
{
    constexpr int STEP = 100;
    display.showTimeInSystemWindow(false);
    for (int begun = 0; begun < 2; ++begun) {
        idle->hide();
        time.pass(500); // in one of the two it does not begin with a second
        display.setCurrent(idle.get());
        int late = 0;
        for (int passed = 0; passed <= MINUTE; passed += STEP) {
            time.pass(STEP);
            late += isPaintedAnew() ? 0 : STEP;
        }
        EXPECT_EQ(late, 0);
    }
}

TEST_P(IdleDisplayPrivateTest, NothingButTheClockIsPaintedAtRest)
{
    idle->setBrandingText("Acme");
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    const auto before = lcd.picture();
    time.pass(MINUTE - 1000);
    lcd.paint();
    EXPECT_EQ(lcd.picture().frame, before.frame);
    time.pass(2000);
    lcd.paint();
    EXPECT_GT(lcd.picture().frame, before.frame);
}

TEST_P(IdleDisplayPrivateTest, NobodyIsWokenWhileItCannotBeSeen)
{
    idle->addSystemMessage("One");
    idle->addSystemMessage("Two");
    EXPECT_TRUE(time.isTimerRunning());
    idle->hide();
    EXPECT_FALSE(time.isTimerRunning());
    EXPECT_FALSE(isOnScreen());
    idle->hide();
}

TEST_P(IdleDisplayPrivateTest, OkAndDownOpenTheMenuAtItsDefault)
{
    addCommands();
    for (const int key : {int(PK_OK), int(PK_DOWN)}) {
        press(key);
        EXPECT_TRUE(shows(item("MenuItem", "Call") + item("MenuItem", "Edit")));
        press(PK_LEFT);
        EXPECT_FALSE(shows("MenuItem"));
    }
    idle->setDefaultMenuCommand(edit.get());
    press(PK_OK);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("Edit"));
    EXPECT_FALSE(shows("MenuItem"));
}

TEST_P(IdleDisplayPrivateTest, DefaultGoesWithTheCommands)
{
    addCommands();
    idle->setDefaultMenuCommand(edit.get());
    addCommands();
    press(PK_OK);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("Call"));
}

TEST_P(IdleDisplayPrivateTest, MenuWithoutADefaultBeginsWithItsFirstCommand)
{
    idle->setDefaultMenuCommand(nullptr);
    for (MenuCommand* const command : {call.get(), edit.get()})
        idle->addCommand(command);
    for (const int key : {PK_OK, PK_DOWN, PK_LEFT, PK_OK, PK_OK})
        press(key);
    EXPECT_THAT(raised, ElementsAre("Call"));
}

TEST_P(IdleDisplayPrivateTest, MenuGoesRoundAndChooses)
{
    addCommands();
    press(PK_DOWN);
    press(PK_UP);
    press(PK_OK);
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("Edit", "Call"));
}

TEST_P(IdleDisplayPrivateTest, CommandThatIsGoneRaisesNothing)
{
    addCommands();
    call.reset();
    press(PK_OK);
    press(PK_OK);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(IdleDisplayPrivateTest, ThereIsNoMenuWithoutCommands)
{
    press(PK_OK);
    press(PK_DOWN);
    addCommands();
    EXPECT_FALSE(shows("MenuItem"));
    press(PK_OK);
    idle->clearCommands();
    EXPECT_FALSE(shows("MenuItem"));
    EXPECT_TRUE(shows("Time"));
}

TEST_P(IdleDisplayPrivateTest, LeftGoesBack)
{
    addCommands();
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("back"));
    press(PK_OK);
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("back"));
}

TEST_P(IdleDisplayPrivateTest, OtherKeysDoNothing)
{
    addCommands();
    for (const int key : {int(PK_UP), int(PK_RIGHT), int(PK_HOOK), int('1')})
        press(key);
    EXPECT_THAT(raised, IsEmpty());
    EXPECT_EQ(display.getCurrent(), idle.get());
}

TEST_P(IdleDisplayPrivateTest, LogoThatIsMissingShowsNothing)
{
    idle->changeLogo("/nowhere/logo.png");
    EXPECT_FALSE(shows("Logo"));
}

TEST_P(IdleDisplayPrivateTest, TextIsThatOfWhatCanBeSeen)
{
    idle->setBrandingText("Acme");
    EXPECT_EQ(idle->getPrivateImpl()->serialise({}), "");
    const std::string below = idle->getPrivateImpl()->serialise({DisplayAPIUtils::Rect(0, 38, 208, 4)});
    EXPECT_EQ(below.find("Time"), std::string::npos);
}

INSTANTIATE_ON_PANELS(IdleDisplayPrivateTest);

} // namespace
