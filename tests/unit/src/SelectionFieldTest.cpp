#include "DisplayAPI/SelectionField.h"

#include "DisplayAPI/Form.h"
#include "DisplayAPI/MenuCommand.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/MadeFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "variants/form/SelectionFieldPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr auto HOUSE = PhonebookItem::ICON_HOME;

class SelectionFieldTest : public test::MadeFacadeTest<SelectionField, test::HardwareVariant> {
protected:
    std::string side(const char* name, const std::string& text, int icon)
    {
        return callText(name, text, icon, &home, form);
    }

    TranslationInfo label{"Kind", nullptr};
    MenuCommand home{"Home", 1}, office{"Work", 2};
    int somewhere = 0;
    Form* const form = reinterpret_cast<Form*>(&somewhere); ///< only handed on
    std::unique_ptr<SelectionField>& field = facade;
};

TEST_P(SelectionFieldTest, ProductionDataSaysWhichSideItHas)
{
    for (const int variant : {0, 1, 8})
        EXPECT_THAT(made(variant, "Kind", &home, form, true), ElementsAre(side("SelectionFieldPrivateWP1", "Kind", 0)))
            << variant;
    for (const int variant : {2, 3, 9})
        EXPECT_THAT(made(variant, "Kind", &home, form, false), ElementsAre(side("SelectionFieldPrivate", "Kind", 0)))
            << variant;
}

TEST_P(SelectionFieldTest, EachConstructorHandsOnWhatItIsGiven)
{
    const std::string translated = "translated " + TranslatedText(&label).text();
    EXPECT_THAT(made(2, "Kind", HOUSE, &home, form, true), ElementsAre(side("SelectionFieldPrivate", "Kind", 2)));
    EXPECT_THAT(made(2, &label, &home, form, true), ElementsAre(side("SelectionFieldPrivate", translated, 0)));
    EXPECT_THAT(made(8, &label, HOUSE, &home, form, true),
                ElementsAre(side("SelectionFieldPrivateWP1", translated, 2)));
}

TEST_P(SelectionFieldTest, FieldsAreCountedWhereverTheyAreMade)
{
    made(2, "Kind", &home, form, true);
    const int first = field->getID();
    made(2, &label, &home, form, true);
    EXPECT_EQ(field->getID(), first + 1);
    EXPECT_EQ(field->getType(), "Selectionfield");
    EXPECT_EQ(field->getLabel(), "");
}

TEST_P(SelectionFieldTest, ChoicesAreKeptInTheirOrder)
{
    made(2, "Kind", &home, form, true);
    EXPECT_THAT(field->getCommands(), IsEmpty());
    run([&] {
        field->appendSelection(&home);
        field->appendSelection(nullptr);
        field->appendSelection(&office);
    });
    EXPECT_THAT(field->getCommands(), ElementsAre(&home, &office));
    EXPECT_THAT(reached(), ElementsAre(callText("SelectionFieldPrivate::appendSelection", &home),
                                       callText("SelectionFieldPrivate::appendSelection", &office)));
    run([&] { field->clearSelections(nullptr); });
    EXPECT_THAT(field->getCommands(), IsEmpty());
}

TEST_P(SelectionFieldTest, WithoutASideChoicesAreKept)
{
    run([&] { field = std::make_unique<SelectionField>(static_cast<SelectionFieldPrivateIfc*>(nullptr)); });
    run([&] { field->appendSelection(&home); });
    EXPECT_THAT(field->getCommands(), ElementsAre(&home));
    gui.call([&] { field->localeChanged("de"); });
}

TEST_P(SelectionFieldTest, LocaleGoesToTheSide)
{
    made(2, "Kind", &home, form, true);
    gui.call([&] { field->localeChanged("de"); });
    field->setContextMenuSuppressed();
    EXPECT_THAT(reached(), ElementsAre("SelectionFieldPrivate::localeChanged(\"de\")"));
}

TEST_P(SelectionFieldTest, SideIsDeletedOnce)
{
    made(2, "Kind", &home, form, true);
    carryOut(GetParam(), *field, 2);
    EXPECT_EQ(field->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *field, 2);
    EXPECT_THAT(reached(), ElementsAre("~SelectionFieldPrivate()"));
}

TEST_P(SelectionFieldTest, SideThatIsMadeElsewhereIsAdopted)
{
    SelectionFieldPrivateIfc* given = nullptr;
    run([&] {
        given = new SelectionFieldPrivate("Kind", HOUSE, nullptr, nullptr);
        field = std::make_unique<SelectionField>(given);
    });
    EXPECT_EQ(field->getPrivateImpl(), given);
    reached();
    run([&] { field.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~SelectionFieldPrivate()"));
}

TEST_P(SelectionFieldTest, FormTakesItAsItsOptions)
{
    std::unique_ptr<Form> options;
    run([&] { options = std::make_unique<Form>(Form::HALF_AND_HALF); });
    made(2, "Kind", &home, options.get(), true);
    SelectionField* const given = field.release();
    run([&] { options->setFormOptions(given); });
    EXPECT_THAT(options->getItems(), ElementsAre(given));
    EXPECT_EQ(given->getParent(), options.get());
    run([&] { options.reset(); });
}

INSTANTIATE_FROM_BOTH_THREADS(SelectionFieldTest);

using QueuedSelectionFieldTest = test::SteppedTest;

TEST_F(QueuedSelectionFieldTest, MakingWaitsAndSoDoesDeleting)
{
    TranslationInfo label("Kind", nullptr);
    for (const int code : {0, 1}) {
        const test::Worker worker([&] {
            const auto field = code == 0 ? std::make_unique<SelectionField>("Kind", nullptr, nullptr, true)
                                         : std::make_unique<SelectionField>(&label, nullptr, nullptr, true);
        });
        EXPECT_TRUE(worker.isBlocked());
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(code));
        gui.step();
        gui.waitForQueued(1);
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(2));
        EXPECT_TRUE(worker.isBlocked());
        gui.runAll();
    }
}

} // namespace
