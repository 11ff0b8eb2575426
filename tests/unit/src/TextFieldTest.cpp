#include "DisplayAPI/TextField.h"

#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/MadeFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "variants/form/TextFieldPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string NAME = "Name", ADA = "Ada", EMPTY;
constexpr auto HOUSE = TextField::ICON_HOME;
constexpr auto NUMBER = TextField::TELEPHONE_NUMBER;

class TextFieldTest : public test::MadeFacadeTest<TextField, test::SaysVariant> {
protected:
    static std::string translated(TranslationInfo* text) { return "translated " + TranslatedText(text).text(); }

    TranslationInfo label{"Name", nullptr}, text{"Ada", nullptr};
    TranslationInfo* const none = nullptr;
    std::unique_ptr<TextField>& field = facade;
};

TEST_P(TextFieldTest, HardwareVariantSaysWhichSideItHas)
{
    EXPECT_THAT(made(1, "Name", HOUSE, "Ada", NUMBER),
                ElementsAre(callText("TextFieldPrivate", NAME, 2, ADA, 2, false)));
    for (const int variant : {0, 2, 8, -1})
        EXPECT_THAT(made(variant, "Name", HOUSE, "Ada", NUMBER),
                    ElementsAre(callText("TextFieldPrivateWP1", NAME, 2, ADA, 2, false)))
            << variant;
}

TEST_P(TextFieldTest, TranslatedTextsAndTheFlagAreHandedOn)
{
    for (const bool readOnly : {false, true})
        EXPECT_THAT(made(1, &label, HOUSE, &text, NUMBER, readOnly),
                    ElementsAre(callText("TextFieldPrivate", translated(&label), 2, translated(&text), 2, readOnly)));
    for (const int variant : {0, 2, 8})
        EXPECT_THAT(made(variant, &label, HOUSE, none, NUMBER, true),
                    ElementsAre(callText("TextFieldPrivateWP1", translated(&label), 2, EMPTY, 2, true)))
            << variant;
}

TEST_P(TextFieldTest, NullLabelMakesBothTextsEmptyFromAWorkerAlone)
{
    const bool isLost = GetParam() == From::WORKER;
    EXPECT_THAT(made(1, none, HOUSE, &text, NUMBER, true),
                ElementsAre(callText("TextFieldPrivate", EMPTY, 2, isLost ? EMPTY : translated(&text), 2, !isLost)));
}

TEST_P(TextFieldTest, RecordSaysWhatIsBuilt)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    carryOut(GetParam(), *field, 1);
    reached();
    carryOut(GetParam(), *field, 0, [&](GuiRequestEvent& record) {
        record.ptrParam1 = &label;
        record.ptrParam2 = &text;
        record.intParam1 = 5;
        record.intParam2 = 70000;
        record.boolParam1 = true;
    });
    EXPECT_THAT(reached(),
                ElementsAre(callText("TextFieldPrivate", translated(&label), 5, translated(&text), 70000, true)));
}

TEST_P(TextFieldTest, UnknownValuesTravelUnchanged)
{
    EXPECT_THAT(made(1, "Name", TextField::IconImage(-7), "Ada", TextField::FieldType(700)),
                ElementsAre(callText("TextFieldPrivate", NAME, -7, ADA, 700, false)));
    EXPECT_EQ(field->getIcon(), TextField::IconImage(-7));
    EXPECT_EQ(field->getFieldType(), TextField::FieldType(700));
}

TEST_P(TextFieldTest, IconAndTypeStayWhatTheConstructorWasGiven)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    run([&] {
        field->setIcon(TextField::ICON_LETTER);
        field->setFieldType(TextField::DATE);
    });
    EXPECT_EQ(field->getIcon(), HOUSE);
    EXPECT_EQ(field->getFieldType(), NUMBER);
}

TEST_P(TextFieldTest, FieldsAreCountedWhereverTheyAreMade)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    const int first = field->getID();
    EXPECT_GE(first, 1);
    made(1, &label, HOUSE, &text, NUMBER, false);
    EXPECT_EQ(field->getID(), first + 1);
    made(0, "Name", HOUSE, "Ada", NUMBER);
    EXPECT_EQ(field->getID(), first + 2);
    EXPECT_EQ(field->getType(), "Textfield");
}

TEST_P(TextFieldTest, NullIsATranslationOnTheGuiThreadAndAnEmptyTextFromAWorker)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    run([&] {
        field->setString(none);
        field->setLabel(none);
    });
    const bool isPlain = GetParam() == From::WORKER;
    const auto expected = [&](const char* call) { return isPlain ? callText(call, EMPTY) : callText(call, none); };
    EXPECT_THAT(reached(),
                ElementsAre(expected("TextFieldPrivate::setString"), expected("TextFieldPrivate::setLabel")));
    carryOut(GetParam(), *field, 4);
    carryOut(GetParam(), *field, 5);
    EXPECT_THAT(reached(), ElementsAre(callText("TextFieldPrivate::setString", EMPTY),
                                       callText("TextFieldPrivate::setLabel", EMPTY)));
    carryOut(GetParam(), *field, 1);
    reached();
    run([&] {
        field->setString(none);
        field->setLabel(none);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextFieldTest, SideIsMadeOnce)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    const auto* const first = field->getPrivateImpl();
    carryOut(GetParam(), *field, 0);
    EXPECT_EQ(field->getPrivateImpl(), first);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextFieldTest, ReadOnlyOperationsOfItsBaseDoNothing)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    run([&] {
        field->setReadOnly(true);
        EXPECT_FALSE(field->isReadOnly());
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextFieldTest, LanguageIsToldToItsSide)
{
    made(1, "Name", HOUSE, "Ada", NUMBER);
    gui.call([&] { field->localeChanged("de"); });
    EXPECT_THAT(reached(), ElementsAre("TextFieldPrivate::localeChanged(\"de\")"));
    carryOut(GetParam(), *field, 1);
    reached();
    gui.call([&] { field->localeChanged("de"); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextFieldTest, SideIsDeletedOnce)
{
    made(0, "Name", HOUSE, "Ada", NUMBER);
    carryOut(GetParam(), *field, 1);
    EXPECT_EQ(field->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *field, 1);
    run([&] { field.reset(); });
    EXPECT_THAT(reached(), ElementsAre("~TextFieldPrivateWP1()"));
}

INSTANTIATE_FROM_BOTH_THREADS(TextFieldTest);

using QueuedTextFieldTest = test::SteppedTest;

TEST_F(QueuedTextFieldTest, MakingWaitsAndSoDoesDeleting)
{
    TranslationInfo label("Name", nullptr);
    for (const bool isTranslated : {false, true}) {
        const test::Worker worker([&] {
            const auto field = isTranslated ? std::make_unique<TextField>(&label, HOUSE, nullptr, NUMBER, true)
                                            : std::make_unique<TextField>("Name", HOUSE, "", NUMBER);
        });
        EXPECT_TRUE(worker.isBlocked());
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
        gui.step();
        gui.waitForQueued(1);
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
        EXPECT_TRUE(worker.isBlocked());
        gui.runAll();
    }
}

} // namespace
