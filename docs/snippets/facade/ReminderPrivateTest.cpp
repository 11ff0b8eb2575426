#include "Reminder.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Mocks.h"
#include "doubles/Screen.h"
#include "host/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/FacadeContract.h"
#include "support/RowsOwner.h"
#include "toolkit/PegThing.h"
#include "utilities/TranslationInfo.h"

using DisplayAPI::Display;
using DisplayAPI::DisplayPrivate;
using DisplayAPI::Reminder;
using testing::HasSubstr;
using testing::Return;

namespace {

/// A reminder over a menu, on the panel of two lines and on the others.
class ReminderPrivateTest : public testing::TestWithParam<test::Panel> {
protected:
    ReminderPrivateTest()
    {
        display.show();
        display.setCurrent(&menu);
        display.setCurrent(&reminder);
        reminder.addCommandListener(&listener);
    }

    ~ReminderPrivateTest() override { reminder.removeCommandListener(&listener); }

    void press(int key) { reminder.getPrivateImpl()->getWidget()->Message(test::keyMessage(key)); }
    std::string onScreen() { return reminder.getPrivateImpl()->serialise(); }

    test::OnPanel panel{GetParam()};
    test::SteppedLoop gui;
    Display display{new DisplayPrivate(false, GetParam() == test::Panel::SMALL ? "WP1" : "any", "", "", "", "", nullptr,
                                       nullptr, new doubles::FakeStartUp, true)};
    doubles::Screen menu{"menu"};
    Reminder reminder;
    testing::StrictMock<doubles::MockCommandListener> listener;
};

TEST_P(ReminderPrivateTest, ChoosingAnswersTellsAndLeavesTheScreen)
{
    EXPECT_EQ(reminder.getMinutes(), -1);
    EXPECT_CALL(listener, postCommandAction(Reminder::CHOSEN_COMMAND(), &reminder));
    press(PK_RIGHT);
    press(PK_OK);
    EXPECT_EQ(reminder.getMinutes(), 10);
    EXPECT_EQ(display.getCurrent(), &menu);
}

TEST_P(ReminderPrivateTest, LastChoiceIsThePanels)
{
    EXPECT_CALL(listener, postCommandAction);
    press(PK_LEFT);
    for (int i = 0; i < 9; ++i)
        press(PK_RIGHT);
    press(PK_OK);
    EXPECT_EQ(reminder.getMinutes(), GetParam() == test::Panel::FULL ? 60 : 30);
}

TEST_P(ReminderPrivateTest, TranslatedTextFollowsTheLanguage)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Call.Back")).WillRepeatedly(Return("Call back"));
    TranslationInfo text("Call.Back", &translator);
    reminder.setText(&text);
    EXPECT_THAT(onScreen(), HasSubstr("caption:Call back\n"));
    EXPECT_CALL(translator, translate("Call.Back")).WillRepeatedly(Return("Rückruf"));
    display.localeChanged("de");
    EXPECT_THAT(onScreen(), HasSubstr("caption:Rückruf\n"));
}

TEST_P(ReminderPrivateTest, UrgentOneSaysSo)
{
    reminder.setText("Call back");
    reminder.setUrgency(Reminder::URGENT);
    EXPECT_THAT(onScreen(), HasSubstr("caption:! Call back\n"));
}

TEST_P(ReminderPrivateTest, ObserverHearsOfEachChangeThatIsSeen)
{
    doubles::MockDisplayEvent observer;
    display.subscribe(&observer);
    EXPECT_CALL(observer, displayChanged);
    reminder.setText("Call back");
    testing::Mock::VerifyAndClearExpectations(&observer);
    reminder.dismiss();
    EXPECT_CALL(observer, displayChanged).Times(0);
    reminder.setText("Call back later");
    display.unSubscribe();
}

INSTANTIATE_TEST_SUITE_P(Panels, ReminderPrivateTest, testing::Values(test::Panel::FULL, test::Panel::SMALL),
                         [](const auto& tested) { return tested.param == test::Panel::FULL ? "full" : "small"; });

} // namespace
