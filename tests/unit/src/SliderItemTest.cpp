#include "DisplayAPI/SliderItem.h"

#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/MadeFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "variants/form/SliderItemPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SliderItemTest : public test::MadeFacadeTest<SliderItem, test::HardwareVariant> {
protected:
    TranslationInfo label{"Volume", nullptr};
    std::unique_ptr<SliderItem>& slider = facade;
};

TEST_P(SliderItemTest, ProductionDataSaysWhichSideATranslatedOneHas)
{
    const std::string text = "\"translated " + TranslatedText(&label).text() + "\"";
    for (const int variant : {0, 1, 8})
        EXPECT_THAT(made(variant, &label), ElementsAre("SliderItemPrivateWP1(" + text + ")")) << variant;
    for (const int variant : {2, 3, 9})
        EXPECT_THAT(made(variant, &label), ElementsAre("SliderItemPrivate(" + text + ")")) << variant;
}

TEST_P(SliderItemTest, PlainTextAsksForTheHardwareFromAWorkerAlone)
{
    for (const int variant : {0, 1, 8}) {
        const std::string side = GetParam() == From::WORKER ? "SliderItemPrivateWP1" : "SliderItemPrivate";
        EXPECT_THAT(made(variant, "Volume"), ElementsAre(side + "(\"Volume\")")) << variant;
    }
    EXPECT_THAT(made(2, "Volume"), ElementsAre("SliderItemPrivate(\"Volume\")"));
}

TEST_P(SliderItemTest, SideThatIsMadeElsewhereIsAdopted)
{
    SliderItemPrivateIfc* given = nullptr;
    run([&] {
        given = new SliderItemPrivate("Volume");
        slider = std::make_unique<SliderItem>(given);
    });
    EXPECT_EQ(slider->getPrivateImpl(), given);
    reached();
    run([&] { slider.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~SliderItemPrivate()"));
}

TEST_P(SliderItemTest, SideIsDeletedOnce)
{
    made(2, "Volume");
    carryOut(GetParam(), *slider, 3);
    EXPECT_EQ(slider->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *slider, 3);
    EXPECT_THAT(reached(), ElementsAre("~SliderItemPrivate()"));
}

TEST_P(SliderItemTest, ItemsOperationsAreThoseOfItsBase)
{
    made(2, "Volume");
    run([&] {
        EXPECT_EQ(slider->getType(), "baseItem");
        EXPECT_EQ(slider->getID(), 0);
        slider->localeChanged("de");
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(SliderItemTest, NullTranslationIsAnEmptyLabel)
{
    for (const int variant : {0, 2}) {
        const std::string side = variant == 0 ? "SliderItemPrivateWP1" : "SliderItemPrivate";
        EXPECT_THAT(made(variant, static_cast<TranslationInfo*>(nullptr)), ElementsAre(side + "(\"\")"));
        run([&] { slider->setLabel(static_cast<TranslationInfo*>(nullptr)); });
        EXPECT_THAT(reached(), ElementsAre(callText(side + "::setLabel", static_cast<TranslationInfo*>(nullptr))));
    }
}

TEST_P(SliderItemTest, WithoutASideItTakesEverythingAndAnswersNothing)
{
    run([&] {
        slider = std::make_unique<SliderItem>(static_cast<SliderItemPrivateIfc*>(nullptr));
        slider->setMaxValue("10");
        slider->setMinValue("1");
        slider->setValue("5");
        slider->setInterval("2");
        slider->setLabel("Tone");
        slider->setLabel(&label);
        slider->setReadOnly(true);
        EXPECT_EQ(slider->getMaxValue(), "");
        EXPECT_EQ(slider->getValue(), "");
        EXPECT_FALSE(slider->isReadOnly());
    });
    EXPECT_EQ(slider->getPrivateImpl(), nullptr);
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(SliderItemTest);

using QueuedSliderItemTest = test::SteppedTest;

TEST_F(QueuedSliderItemTest, MakingWaitsAndSoDoesDeleting)
{
    TranslationInfo label("Volume", nullptr);
    for (const int code : {1, 2}) {
        const test::Worker worker([&] {
            const auto slider =
                code == 1 ? std::make_unique<SliderItem>("Volume") : std::make_unique<SliderItem>(&label);
        });
        EXPECT_TRUE(worker.isBlocked());
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(code));
        const auto& record = *static_cast<GuiRequestEvent*>(gui.messages().at(0).pData);
        EXPECT_EQ(record.stringParam1, code == 1 ? "Volume" : "");
        EXPECT_EQ(record.ptrParam1, code == 1 ? nullptr : &label);
        gui.step();
        gui.waitForQueued(1);
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(3));
        EXPECT_TRUE(worker.isBlocked());
        gui.runAll();
    }
}

} // namespace
