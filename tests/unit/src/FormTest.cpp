#include "DisplayAPI/Form.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "doubles/Mocks.h"
#include "doubles/TestItem.h"
#include "support/HardwareVariant.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/MadeFacadeTest.h"
#include "utilities/Threadable.h"
#include "utilities/TranslationInfo.h"
#include "variants/form/FormPrivate.h"

#include <atomic>

using namespace DisplayAPI;
using doubles::callText;
using doubles::TestItem;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class FormTest : public test::MadeFacadeTest<Form, test::HardwareVariant> {
protected:
    /// Makes a form on hardware that is called so, and tells how its private side has been made.
    std::vector<std::string> made(int variant = 2)
    {
        return MadeFacadeTest::made(variant, static_cast<Form::FormProportionType>(77));
    }

    /// A form with items that are called so.
    void madeWith(const std::vector<std::string>& names)
    {
        made();
        for (const std::string& each : names)
            run([&] { form->append(new TestItem(each)); });
        reached();
    }

    std::unique_ptr<Form>& form = facade;
};

TEST_P(FormTest, ProductionDataSaysWhichSideItHas)
{
    for (const int variant : {0, 1, 8}) {
        const auto calls = made(variant);
        EXPECT_THAT(calls, ElementsAre(callText("FormPrivateWP1", form.get(), 77))) << variant;
    }
    for (const int variant : {2, 3, 7, 9}) {
        const auto calls = made(variant);
        EXPECT_THAT(calls, ElementsAre(callText("FormPrivate", form.get(), 77))) << variant;
    }
    EXPECT_EQ(form->getName(), "Form");
}

TEST_P(FormTest, ApplicationsVariantDoesNotMatter)
{
    for (const int variant : {0, 1}) {
        test::setHardwareVariant(variant);
        const auto calls = made(1);
        EXPECT_THAT(calls, ElementsAre(callText("FormPrivateWP1", form.get(), 77)));
    }
}

TEST_P(FormTest, SideThatIsMadeElsewhereIsAdopted)
{
    FormPrivateIfc* given = nullptr;
    run([&] {
        given = new FormPrivate(nullptr, Form::HALF_AND_HALF);
        form = std::make_unique<Form>(given);
    });
    EXPECT_EQ(recorder.count("FormPrivate"), 1);
    EXPECT_EQ(form->getPrivateImpl(), given);
    EXPECT_THAT(form->getItems(), IsEmpty());
    EXPECT_THAT(form->getCommands(), IsEmpty());
}

TEST_P(FormTest, EndDestroysTheSideAndThenTheItemsFromTheLast)
{
    madeWith({"first", "second"});
    run([&] { form.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("FormPrivate::destroy()", "~FormPrivate()", "~second()", "~first()"));
}

TEST_P(FormTest, ItemThatIsAppendedTwiceIsInItOnce)
{
    madeWith({"first"});
    Item* const first = form->getItems().front();
    run([&] { form->append(first); });
    Item* const nobody = nullptr;
    EXPECT_THAT(reached(), ElementsAre(callText("FormPrivate::append", first, nobody), "FormPrivate::own((nil))"));
    EXPECT_THAT(form->getItems(), ElementsAre(first));
    run([&] { form.reset(); });
    EXPECT_EQ(recorder.count("~first()"), 1);
}

TEST_P(FormTest, ItemWhoseParentHasGoneIsTakenAllTheSame)
{
    made();
    auto* const item = new TestItem("item");
    run([&] { item->setParent(std::make_unique<Form>(Form::HALF_AND_HALF).get()); });
    run([&] { form->append(item); });
    EXPECT_EQ(item->getParent(), form.get());
    EXPECT_THAT(form->getItems(), ElementsAre(item));
}

TEST_P(FormTest, NullIsNoItem)
{
    made();
    run([&] { form->append(nullptr); });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_THAT(form->getItems(), IsEmpty());
}

TEST_P(FormTest, WithoutASideItemsAndCommandsAreKept)
{
    run([&] { form = std::make_unique<Form>(static_cast<FormPrivateIfc*>(nullptr)); });
    Command command("Save", Command::SAVE);
    auto* const item = new TestItem("item");
    run([&] {
        form->append(item);
        form->addCommand(&command);
        form->addCommand(nullptr);
    });
    EXPECT_EQ(item->getParent(), form.get());
    EXPECT_THAT(form->getItems(), ElementsAre(item));
    EXPECT_THAT(form->getCommands(), ElementsAre(&command, nullptr));
    run([&] { form->clearCommands(); });
    EXPECT_THAT(form->getCommands(), IsEmpty());
}

TEST_P(FormTest, ItemsAreNeitherInsertedNorRemoved)
{
    madeWith({"first"});
    TestItem other("other");
    run([&] {
        form->insertItem(&other, 0);
        EXPECT_EQ(form->removeItem(0), 0);
        form->setCurrentLanguageFixed();
    });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_EQ(form->getItems().size(), 1u);
}

TEST_P(FormTest, ClearingDeletesItemsFromTheLastAndForgetsCommands)
{
    madeWith({"first", "second", "third"});
    Command command("Save", Command::SAVE);
    run([&] { form->addCommand(&command); });
    reached();
    gui.call([&] { form->clear(); });
    EXPECT_THAT(reached(), ElementsAre("~third()", "~second()", "~first()"));
    EXPECT_THAT(form->getItems(), IsEmpty());
    EXPECT_THAT(form->getCommands(), IsEmpty());
    EXPECT_TRUE(Command::exists(&command));
}

TEST_P(FormTest, CommandsAreKeptInTheirOrderAfterTheScreenHasThem)
{
    made();
    Command save("Save", Command::SAVE), back("Back", Command::BACK);
    run([&] {
        form->addCommand(&save);
        form->addCommand(&back);
    });
    EXPECT_THAT(form->getCommands(), ElementsAre(&save, &back));
    run([&] { form->clearCommands(); });
    EXPECT_THAT(form->getCommands(), IsEmpty());
    EXPECT_TRUE(Command::exists(&save));
}

TEST_P(FormTest, ClassCommandsAreOneEach)
{
    const std::vector<Command* (*)()> accessors{&Form::CURRENT_ITEM_CHANGED_COMMAND,
                                                &Form::CLIPBOARD_CHANGED_COMMAND,
                                                &Form::SELECTION_CHANGED_COMMAND,
                                                &Form::SELECTION_DISPLAY_COMMAND,
                                                &Form::SAVE_COMMAND,
                                                &Form::OK_COMMAND,
                                                &Form::BACK_COMMAND};
    std::vector<std::pair<std::string, int>> seen;
    std::set<Command*> commands;
    run([&] {
        for (const auto accessor : accessors) {
            EXPECT_EQ(accessor(), accessor());
            commands.insert(accessor());
            seen.emplace_back(accessor()->getText(), accessor()->getType());
        }
    });
    EXPECT_EQ(commands.size(), accessors.size());
    EXPECT_THAT(seen, ElementsAre(Pair("current item changed", 7), Pair("", 7), Pair("", 7), Pair("", 7), Pair("", 11),
                                  Pair("", 6), Pair("", 1)));
}

/// Not carried to the GUI thread: they run where they are called.
TEST_P(FormTest, ListenersAndTheWayOfOkGoToTheSideDirectly)
{
    made();
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* const listener = &mock;
    unsigned int thread = 0;
    const auto call = [&] {
        thread = Threadable::currentThreadId();
        form->addCommandListener(listener);
        form->setAlternativeCommandHandling(true);
    };
    run(call);
    for (const doubles::Call& each : recorder.calls())
        EXPECT_EQ(each.thread, thread);
    EXPECT_THAT(reached(), ElementsAre(callText("FormPrivate::addCommandListener", listener),
                                       "FormPrivate::setAlternativeCommandHandling(true)"));
    carryOut(GetParam(), *form, 1);
    reached();
    run(call);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(FormTest, SideIsDestroyedOnce)
{
    madeWith({"first"});
    carryOut(GetParam(), *form, 1);
    EXPECT_EQ(form->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *form, 1);
    EXPECT_THAT(reached(), ElementsAre("FormPrivate::destroy()", "~FormPrivate()", "~first()"));
}

TEST_P(FormTest, SideThatIsAdoptedGivesNoName)
{
    std::string name;
    run([&] {
        form = std::make_unique<Form>(static_cast<FormPrivateIfc*>(nullptr));
        name = form->getName();
    });
    EXPECT_EQ(name, "Displayable with no name");
}

TEST_P(FormTest, ItemThatIsAppendedToAnotherFormIsDeletedOnce)
{
    madeWith({"first", "second"});
    Item* const first = form->getItems().front();
    std::unique_ptr<Form> other;
    run([&] {
        other = std::make_unique<Form>(Form::HALF_AND_HALF);
        other->append(first);
        other->append(first);
    });
    EXPECT_EQ(form->getItems().size(), 1u);
    EXPECT_THAT(other->getItems(), ElementsAre(first));
    run([&] { form.reset(); });
    EXPECT_EQ(recorder.count("~first()"), 0);
    run([&] { other.reset(); });
    EXPECT_EQ(recorder.count("~first()"), 1);
}

/// On every thread: where it is the GUI thread itself, in the call.
TEST_P(FormTest, TranslatedTitleIsARecord)
{
    struct Noting : Form {
        Noting() : Form(HALF_AND_HALF) {}
        void processGuiRequest(GuiRequestEvent& request) override
        {
            if (request.getType() == 6)
                ++titles;
            Form::processGuiRequest(request);
        }
        std::atomic<int> titles{0};
    };
    TranslationInfo title("Key", nullptr);
    std::unique_ptr<Noting> noting;
    run([&] { noting = std::make_unique<Noting>(); });
    run([&] { noting->setTitle(&title); });
    EXPECT_EQ(noting->titles, 1);
    run([&] { noting.reset(); });
}

INSTANTIATE_FROM_BOTH_THREADS(FormTest);

using QueuedFormTest = test::SteppedTest;

TEST_F(QueuedFormTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { Form form(Form::HALF_AND_HALF); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

/// Then every thread counts as the GUI thread, but somebody else runs the queue.
TEST_F(QueuedFormTest, TranslatedTitleIsPostedWhileNoGuiThreadIsRecorded)
{
    Form form(Form::HALF_AND_HALF);
    TranslationInfo title("Key", nullptr);
    Widget::setGuiThreadId(0);
    test::Worker worker([&] { form.setTitle(&title); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(6));
    gui.runAll();
    worker.join();
    Widget::setGuiThreadId();
    EXPECT_EQ(doubles::Recorder::instance().count(callText("FormPrivateWP1::setTitle", &title)) +
                  doubles::Recorder::instance().count(callText("FormPrivate::setTitle", &title)),
              1);
}

TEST_F(QueuedFormTest, TranslatedTitleIsCarriedOutHereWithoutAFilter)
{
    Form form(Form::HALF_AND_HALF);
    TranslationInfo title("Key", nullptr);
    gui.removeFilter();
    Widget::setGuiThreadId(0);
    form.setTitle(&title);
    Widget::setGuiThreadId();
    EXPECT_EQ(doubles::Recorder::instance().last("FormPrivate").text, callText("FormPrivate::setTitle", &title));
}

} // namespace
