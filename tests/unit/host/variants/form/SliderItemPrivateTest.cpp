// What a slider shows and how the user moves it.

#include "DisplayAPI/SliderItem.h"

#include "DisplayAPI/ItemPrivateIfc.h"
#include "support/LogLines.h"
#include "unit/host/variants/form/FormVariantTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class SliderItemPrivateTest : public test::FormVariantTest {
protected:
    SliderItemPrivateTest() { form->append(slider); }
    ~SliderItemPrivateTest() override { form.reset(); }

    SliderItem* slider = new SliderItem("Volume"); ///< the form's
};

TEST_P(SliderItemPrivateTest, GoesFromNoneToAHundredAtFirst)
{
    EXPECT_EQ(slider->getMaxValue(), "100");
    EXPECT_EQ(slider->getValue(), "0");
    open();
    EXPECT_EQ(shown(), asText(item("Volume", "0")));
}

TEST_P(SliderItemPrivateTest, KeysMoveItByTheIntervalWithinItsRange)
{
    slider->setMinValue("-1");
    slider->setMaxValue("1.00");
    slider->setInterval("0.75");
    slider->setValue("0");
    open();
    press(PK_RIGHT);
    EXPECT_EQ(slider->getValue(), "0.75");
    press({PK_RIGHT, PK_RIGHT});
    EXPECT_EQ(slider->getValue(), "1.00");
    press({PK_LEFT, PK_LEFT, PK_LEFT});
    EXPECT_EQ(slider->getValue(), "-1");
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("changed", "changed", "changed", "changed", "changed"));
}

TEST_P(SliderItemPrivateTest, EndThatIsTheSameNumberWithOtherDecimalsIsAChange)
{
    slider->setValue("100.0");
    open();
    press(PK_RIGHT);
    EXPECT_EQ(slider->getValue(), "100");
    EXPECT_THAT(raised, ElementsAre("changed"));
    press(PK_RIGHT);
    EXPECT_THAT(raised, SizeIs(1));
}

TEST_P(SliderItemPrivateTest, ReadFromTheRightItGrowsToTheLeft)
{
    open();
    changeLanguage("ar");
    press({PK_LEFT, PK_LEFT, PK_RIGHT});
    EXPECT_EQ(slider->getValue(), "1");
}

TEST_P(SliderItemPrivateTest, WhatIsOutOfRangeBecomesTheNearestThatIsInIt)
{
    slider->setValue("101");
    EXPECT_EQ(slider->getValue(), "100");
    slider->setMaxValue("7.5");
    EXPECT_EQ(slider->getMaxValue(), "7.5");
    EXPECT_EQ(slider->getValue(), "7.5");
    slider->setValue("-3");
    EXPECT_EQ(slider->getValue(), "0");
    slider->setMinValue("2.50");
    EXPECT_EQ(slider->getValue(), "2.50");
    slider->setMinValue("9");
    EXPECT_EQ(slider->getValue(), "7.5");
}

TEST_P(SliderItemPrivateTest, NonsenseIsIgnoredAndLogged)
{
    slider->setValue("5.0");
    const host::LogCapture log;
    slider->setValue("loud");
    slider->setMaxValue("");
    slider->setMinValue("1,5");
    slider->setInterval("x");
    slider->setInterval("0");
    slider->setInterval("-1");
    EXPECT_EQ(slider->getValue(), "5.0");
    EXPECT_EQ(slider->getMaxValue(), "100");
    open();
    press(PK_RIGHT);
    EXPECT_EQ(slider->getValue(), "6.0");
    EXPECT_THAT(test::linesOf(log, "DisplayAPI::SliderItemPrivate"), SizeIs(6));
}

TEST_P(SliderItemPrivateTest, ReadOnlyItStaysAsItIsAndLeavesTheKeysToTheForm)
{
    EXPECT_FALSE(slider->isReadOnly());
    slider->setReadOnly(true);
    EXPECT_TRUE(slider->isReadOnly());
    open();
    press({PK_RIGHT, PK_LEFT});
    EXPECT_EQ(slider->getValue(), "0");
    EXPECT_THAT(raised, ElementsAre("back"));
}

TEST_P(SliderItemPrivateTest, LabelFollowsTheLanguage)
{
    TranslationInfo label("volume", &dictionary);
    slider->setLabel(&label);
    open();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText(item("de:volume", "0")));
    slider->setLabel("Tone");
    EXPECT_EQ(shown(), asText(item("Tone", "0")));
}

TEST_P(SliderItemPrivateTest, AnswersWithNothingWhenItsFormHasGone)
{
    open();
    slider->setValue("5");
    auto& side = *slider->getPrivateImpl();
    delete side.getWidget();
    EXPECT_EQ(slider->getValue(), "");
    EXPECT_EQ(slider->getMaxValue(), "");
    EXPECT_FALSE(slider->isReadOnly());
    slider->setValue("6");
    slider->setMinValue("6");
    slider->setMaxValue("6");
    slider->setInterval("6");
    slider->setReadOnly(true);
    slider->setLabel("Tone");
    EXPECT_EQ(shown(), asText(""));
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(SliderItemPrivateTest, WhatTheApplicationChangesIsToldOnce)
{
    open();
    const std::vector<std::function<void()>> changes{
        [&] { slider->setMaxValue("20"); }, [&] { slider->setMinValue("1"); },  [&] { slider->setValue("7"); },
        [&] { slider->setLabel("Tone"); },  [&] { slider->setReadOnly(true); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_EQ(changesBy(changes[i]), 1) << i;
}

INSTANTIATE_ON_PANELS(SliderItemPrivateTest);

} // namespace
