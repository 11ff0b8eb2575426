// What a progress popup shows.

#include "DisplayAPI/PopupProgress.h"
#include "unit/host/variants/popup/PopupVariantTest.h"

using namespace DisplayAPI;

namespace {

class PopupProgressPrivateTest : public test::PopupVariantTest<PopupProgress> {
protected:
    ~PopupProgressPrivateTest() override { popup.reset(); }

    static std::string asText(const std::string& lines) { return PopupVariantTest::asText("PopupProgress", lines); }
    static std::string inBar(int percent)
    {
        return "subitem:\nname:ProgressBar\nstring0:" + std::to_string(percent) + "\nendsubitem:\n";
    }
};

TEST_P(PopupProgressPrivateTest, BarGoesFromNothingToAHundred)
{
    popup->setText("Update");
    popup->show();
    EXPECT_EQ(shown(), asText("caption:Update\n" + inBar(0)));
    for (const auto& [percent, expected] : {std::pair(40, 40), {100, 100}, {101, 100}, {-1, 0}}) {
        popup->updateProgressBar(percent);
        EXPECT_EQ(shown(), asText("caption:Update\n" + inBar(expected)));
    }
}

TEST_P(PopupProgressPrivateTest, OnlyAnotherValueIsNews)
{
    testing::NiceMock<doubles::MockDisplayEvent> observer;
    popup->show();
    display.subscribe(&observer);
    EXPECT_CALL(observer, displayChanged).Times(1);
    popup->updateProgressBar(100);
    popup->updateProgressBar(100);
    popup->updateProgressBar(200);
    display.unSubscribe();
}

TEST_P(PopupProgressPrivateTest, StageAndActivityStandAboveTheBar)
{
    popup->setText(translated("a"));
    popup->setCurrentStageText(translated("b"));
    popup->setCurrentActivityText(translated("c"));
    popup->show();
    changeLanguage("de");
    const std::string between = isSmall() ? "" : "string0:de:b\nstring1:de:c\n";
    EXPECT_EQ(shown(), asText("caption:de:a\n" + between + inBar(0)));
    popup->setText("one");
    popup->setCurrentStageText("");
    popup->setCurrentActivityText("three");
    popup->setType(static_cast<PopupProgress::InfoType>(5));
    EXPECT_EQ(shown(), asText("caption:one\n" + std::string(isSmall() ? "" : "string0:three\n") + inBar(0)));
}

TEST_P(PopupProgressPrivateTest, TypesWithoutABarLeaveItsRoomToTheLines)
{
    for (const int type : {0, 5, -1}) {
        popup = std::make_unique<PopupProgress>(static_cast<PopupProgress::ProgressType>(type));
        popup->setText("one");
        popup->setCurrentStageText("two");
        popup->updateProgressBar(40);
        popup->show();
        EXPECT_EQ(shown(), asText("caption:one\nstring0:two\n"));
    }
}

TEST_P(PopupProgressPrivateTest, KeysAndTimeLeaveItWhereItIs)
{
    popup->show();
    for (const int key : {PK_LEFT, PK_OK, PK_RIGHT, PK_STAR})
        press(key);
    time.pass(1'000'000);
    EXPECT_TRUE(isOnScreen());
    popup->dismiss();
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(PopupProgressPrivateTest, KeepsQuietWhenTheDisplayHasTakenTheWidgetAlong)
{
    popup->show();
    delete side().getWidget();
    popup->updateProgressBar(40);
    popup->setText("Update");
    popup->setType(PopupProgress::WARNING);
    EXPECT_EQ(shown(), "");
    popup->dismiss();
    display.setCurrent(&list);
}

INSTANTIATE_ON_PANELS(PopupProgressPrivateTest);

} // namespace
