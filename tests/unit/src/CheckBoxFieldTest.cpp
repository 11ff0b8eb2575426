#include "DisplayAPI/CheckBoxField.h"

#include "CheckBoxFieldPrivate.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/Image.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::From;
using test::Posted;

namespace {

class CheckBoxFieldTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    TranslationInfo label{"Days", nullptr}, text{"Monday", nullptr};
};

TEST_P(CheckBoxFieldTest, NothingIsShownKeptOrChecked)
{
    std::unique_ptr<CheckBoxField> plain, translated;
    run([&] {
        plain = std::make_unique<CheckBoxField>("Days", "Monday", nullptr);
        translated = std::make_unique<CheckBoxField>(&label, &text, nullptr);
    });
    for (CheckBoxField* field : {plain.get(), translated.get()}) {
        run([&] {
            field->setChecked(true);
            field->swapChecked();
            field->setReadOnly(true);
            EXPECT_FALSE(field->isChecked());
            EXPECT_FALSE(field->isReadOnly());
            EXPECT_EQ(field->getString(), "");
            EXPECT_EQ(field->getImage(), nullptr);
        });
        ASSERT_NE(field->getPrivateImpl(), nullptr);
        EXPECT_EQ(field->getPrivateImpl()->getWidget(), nullptr);
    }
    run([&] {
        plain.reset();
        translated.reset();
    });
}

TEST_P(CheckBoxFieldTest, TakesItsPlaceAmongTheItemsOfAForm)
{
    std::unique_ptr<Form> form;
    run([&] {
        form = std::make_unique<Form>(Form::HALF_AND_HALF);
        form->append(new CheckBoxField("Days", "Monday", nullptr));
    });
    ASSERT_EQ(form->getItems().size(), 1u);
    EXPECT_EQ(form->getItems().front()->getParent(), form.get());
    run([&] { form.reset(); });
}

INSTANTIATE_FROM_BOTH_THREADS(CheckBoxFieldTest);

using QueuedCheckBoxFieldTest = test::SteppedTest;

TEST_F(QueuedCheckBoxFieldTest, WhatIsQueuedIsCarriedOutBeforeItGoes)
{
    auto field = std::make_unique<CheckBoxField>("Days", "Monday", nullptr);
    test::Worker asking([&] { EXPECT_FALSE(field->isChecked()); });
    gui.waitForQueued(1);
    test::Worker deleting([&] { field.reset(); });
    EXPECT_TRUE(deleting.isBlocked());
    gui.runAll();
    asking.join();
    deleting.join();
}

TEST_F(QueuedCheckBoxFieldTest, MakingAndDeletingWait)
{
    TranslationInfo text("Monday", nullptr);
    EXPECT_EQ(test::postedBy(gui, [] { const CheckBoxField field("Days", "Monday", nullptr); }), (Posted{{0}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { const CheckBoxField field(&text, &text, nullptr); }), (Posted{{1}, true}));
}

TEST_F(QueuedCheckBoxFieldTest, RecordThatMakesItHasAllThree)
{
    TranslationInfo label("Days", nullptr), text("Monday", nullptr);
    Image picture{Image::NO_SKIN_ELEMENT};
    for (const int code : {0, 1}) {
        const test::Worker worker([&] {
            if (code == 0)
                const CheckBoxField field("Days", "Monday", &picture);
            else
                const CheckBoxField field(&label, &text, &picture);
        });
        EXPECT_TRUE(worker.isBlocked());
        const auto& record = *static_cast<GuiRequestEvent*>(gui.messages().at(0).pData);
        EXPECT_EQ(record.getType(), code);
        EXPECT_EQ(record.stringParam1, code == 0 ? "Days" : "");
        EXPECT_EQ(record.stringParam2, code == 0 ? "Monday" : "");
        if (code == 0) {
            EXPECT_EQ(record.ptrParam1, &picture);
        } else {
            EXPECT_EQ(record.ptrParam1, &label);
            EXPECT_EQ(record.ptrParam2, &text);
            EXPECT_EQ(record.ptrParam3, &picture);
        }
        while (!worker.hasReturned())
            gui.step();
    }
}

TEST(CheckBoxFieldPrivateTest, KnowsWhetherItsWidgetWouldBeItsOwn)
{
    CheckBoxFieldPrivate side("Days", "Monday", nullptr);
    EXPECT_TRUE(side.hasOwnership());
    side.releaseOwnership();
    EXPECT_FALSE(side.hasOwnership());
    side.gainOwnership();
    EXPECT_TRUE(side.hasOwnership());
    side.localeChanged("de");
}

} // namespace
