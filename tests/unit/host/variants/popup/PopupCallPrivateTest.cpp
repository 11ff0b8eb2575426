// What a call popup shows and tells.

#include "DisplayAPI/PopupCall.h"
#include "unit/host/variants/popup/PopupVariantTest.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using test::inBar;
using testing::ElementsAre;

namespace {

class PopupCallPrivateTest : public test::PopupVariantTest<PopupCall> {
protected:
    PopupCallPrivateTest()
    {
        popup->addCommandListener(&listener);
        popup->setText("Ada");
    }

    ~PopupCallPrivateTest() override { popup.reset(); }

    static std::string asText(const std::string& lines) { return PopupVariantTest::asText("PopupCall", lines); }

    std::unique_ptr<MenuCommand> answer = std::make_unique<MenuCommand>("Answer", 1);
    std::unique_ptr<MenuCommand> reject = std::make_unique<MenuCommand>("Reject", 2);
};

TEST_P(PopupCallPrivateTest, CommandIsRaisedAndThePopupStays)
{
    popup->setCommands({answer.get(), reject.get()});
    display.setCurrent(popup.get());
    press(PK_OK);
    press(PK_RIGHT);
    press(PK_OK);
    press(PK_LEFT);
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("Answer", "Reject"));
    EXPECT_TRUE(isOnScreen());
    popup->dismiss();
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_EQ(raised.size(), 2u);
}

TEST_P(PopupCallPrivateTest, ListenerMayDeleteIt)
{
    ON_CALL(listener, postCommandAction).WillByDefault([this](auto*, auto*) { popup.reset(); });
    popup->setCommands({answer.get()});
    display.setCurrent(popup.get());
    press(PK_OK);
    EXPECT_EQ(popup, nullptr);
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(PopupCallPrivateTest, SelectionBeginsAtTheDefaultCommand)
{
    popup->setDefaultCommand(reject.get());
    popup->addCommand(answer.get());
    popup->addCommand(reject.get());
    EXPECT_EQ(popup->getSelectedIndex(), 1);
    display.setCurrent(popup.get());
    press(PK_LEFT);
    EXPECT_EQ(popup->getSelectedIndex(), 0);
    EXPECT_TRUE(popup->selectionHasChanged());
    popup->setCommands({});
    EXPECT_EQ(popup->getSelectedIndex(), -1);
    EXPECT_FALSE(popup->selectionHasChanged());
}

TEST_P(PopupCallPrivateTest, DeletedCommandKeepsItsTextAndRaisesNothing)
{
    popup->setCommands({answer.get()});
    display.setCurrent(popup.get());
    answer.reset();
    press(PK_OK);
    EXPECT_TRUE(raised.empty());
    EXPECT_EQ(shown(), asText("caption:Ada\n" + inBar("Answer")));
}

TEST_P(PopupCallPrivateTest, LinesFollowTheLanguage)
{
    popup->setLine1PrefixText(translated("a"));
    popup->setText(translated("b"));
    popup->setLine2PrefixText(translated("c"));
    popup->setLine2Text(translated("d"));
    popup->setAuxText("e");
    display.setCurrent(popup.get());
    changeLanguage("de");
    const std::string third = isSmall() ? "" : "string1:e\n";
    EXPECT_EQ(shown(), asText("caption:de:a de:b\nstring0:de:c de:d\n" + third));
    popup->setLine1PrefixText("");
    popup->setText("Ada");
    popup->setLine2PrefixText("via");
    popup->setLine2Text("Bert");
    EXPECT_EQ(shown(), asText("caption:Ada\nstring0:via Bert\n" + third));
}

TEST_P(PopupCallPrivateTest, DetailsTakeThePlaceOfTheLines)
{
    CallPartyIdentifier caller("Ada", "1"), meant("Bert", "2"), nobody;
    popup->setLine1PrefixText("From");
    popup->setLine2PrefixText("via");
    popup->setAuxText("old");
    popup->setPopupCallDetails(caller, &meant, FORWARDED_ALWAYS, "Room 4", translated("urgent"));
    display.setCurrent(popup.get());
    const std::string third = isSmall() ? "" : "string1:Room 4 en:urgent\n";
    EXPECT_EQ(shown(), asText("caption:Ada\nstring0:Bert\n" + third));
    popup->setPopupCallDetails(nobody, nullptr, FORWARDED_ALWAYS, "", nullptr);
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("caption:de:Caller.Unknown.XXX\n"));
}

TEST_P(PopupCallPrivateTest, UnknownStatesAndPicturesChangeNothing)
{
    display.setCurrent(popup.get());
    popup->setState(static_cast<PopupCall::CallState>(77), static_cast<PopupCall::CallPriority>(-1));
    popup->setPictureClip(nullptr);
    EXPECT_EQ(shown(), asText("caption:Ada\n"));
}

INSTANTIATE_ON_PANELS(PopupCallPrivateTest);

} // namespace
