// What a notification shows, and when it goes. How long a popup stays is told by PopupConfirmPrivateTest as well.

#include "DisplayAPI/PopupNotification.h"
#include "unit/host/variants/popup/PopupVariantTest.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PopupNotificationPrivateTest : public test::PopupVariantTest<PopupNotification> {
protected:
    PopupNotificationPrivateTest() { popup->addCommandListener(&listener); }
    ~PopupNotificationPrivateTest() override { popup.reset(); }

    static std::string asText(const std::string& lines) { return PopupVariantTest::asText("PopupNotification", lines); }
};

TEST_P(PopupNotificationPrivateTest, KeysCloseItWhereItIsDismissible)
{
    for (const int key : {PK_OK, PK_LEFT}) {
        popup->setDismissible(false);
        popup->show();
        press(key);
        EXPECT_TRUE(isOnScreen());
        popup->setDismissible(true);
        press(PK_RIGHT);
        EXPECT_TRUE(isOnScreen());
        press(key);
        EXPECT_FALSE(isOnScreen());
    }
    EXPECT_THAT(raised, ElementsAre("hidden", "hidden"));
}

TEST_P(PopupNotificationPrivateTest, TellsOnceThatItIsHidden)
{
    popup->dismiss();
    EXPECT_THAT(raised, IsEmpty());
    popup->setTimeout(3000);
    popup->show();
    time.pass(2999);
    EXPECT_TRUE(isOnScreen());
    time.pass(1);
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden"));
    popup->show();
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden", "hidden"));
    popup->removeCommandListener(&listener);
    popup->show();
    popup->dismiss();
    EXPECT_EQ(raised.size(), 2u);
}

TEST_P(PopupNotificationPrivateTest, LinesStandInTheirPlacesAsFarAsThereIsRoom)
{
    popup->setLine3Text("three");
    popup->show();
    EXPECT_EQ(shown(), asText("string0:three\n"));
    popup->setLine1Text("one");
    popup->setLine1PrefixText("1");
    popup->setLine2Text("two");
    popup->setLine2PrefixText("2");
    EXPECT_EQ(shown(), asText("caption:1 one\nstring0:2 two\n" + std::string(isSmall() ? "" : "string1:three\n")));
    popup->setType(static_cast<PopupNotification::InfoType>(-1));
    popup->setLine2Icon(static_cast<PopupNotification::IconElemType>(7));
    EXPECT_EQ(shown(), asText("caption:1 one\nstring0:2 two\n" + std::string(isSmall() ? "" : "string1:three\n")));
}

TEST_P(PopupNotificationPrivateTest, TranslationsFollowTheLanguage)
{
    popup->setLine1PrefixText(translated("a"));
    popup->setText(translated("b"));
    popup->setLine2PrefixText(translated("c"));
    popup->setLine2Text(translated("d"));
    popup->setLine3Text(translated("e"));
    popup->show();
    changeLanguage("de");
    EXPECT_EQ(shown(),
              asText("caption:de:a de:b\nstring0:de:c de:d\n" + std::string(isSmall() ? "" : "string1:de:e\n")));
}

TEST_P(PopupNotificationPrivateTest, ForwardingTellsWhoWasCalledAndWhoCalls)
{
    CallPartyIdentifier caller("Ada", "1"), called("", "4711"), nobody;
    popup->setForwardNotification(caller, called, FORWARDED_BUSY);
    popup->show();
    EXPECT_EQ(shown(), asText("caption:4711\nstring0:Ada\n"));
    popup->setForwardNotification(nobody, called, static_cast<ForwardedCallType>(77));
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("caption:4711\nstring0:de:Caller.Unknown.XXX\n"));
}

TEST_P(PopupNotificationPrivateTest, UnknownPartyIsToldOnTheSecondLine)
{
    popup->setPartyDetails({});
    popup->show();
    EXPECT_EQ(shown(), asText("string0:en:Caller.Unknown.XXX\n"));
}

INSTANTIATE_ON_PANELS(PopupNotificationPrivateTest);

} // namespace
