#include "DisplayAPI/TextBox.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Ticker.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/MadeFacadeTest.h"
#include "utilities/Threadable.h"
#include "variants/form/TextBoxPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TextBoxTest : public test::MadeFacadeTest<TextBox, test::SaysVariant> {
protected:
    std::unique_ptr<TextBox>& box = facade;
};

TEST_P(TextBoxTest, HardwareVariantAndTheFlagSayWhichSideItHas)
{
    const auto expectSide = [this](int variant, bool twoLine, const char* name) {
        const auto calls = made(variant, twoLine);
        EXPECT_THAT(calls, ElementsAre(callText(name, box.get()))) << variant;
    };
    for (const bool twoLine : {false, true})
        expectSide(1, twoLine, "TextBoxPrivate");
    for (const int variant : {0, 2, 8, -1}) {
        expectSide(variant, false, "TextBoxPrivateWP1");
        expectSide(variant, true, "TextBoxPrivate2LineWP1");
    }
    EXPECT_EQ(box->getName(), "TextBox");
}

TEST_P(TextBoxTest, TwoTextsMakeOneWithoutASide)
{
    run([&] {
        box = std::make_unique<TextBox>("Notes", "Milk");
        EXPECT_EQ(box->getText(), "");
        EXPECT_EQ(box->getSize(), -1);
        EXPECT_EQ(box->getMaxSize(), -1);
        box->addCommandListener(nullptr);
        box->removeCommandListener(nullptr);
        box->cleanup();
    });
    EXPECT_EQ(box->getPrivateImpl(), nullptr);
    EXPECT_EQ(box->getName(), "Displayable with no name");
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextBoxTest, SideThatIsMadeElsewhereIsAdopted)
{
    TextBoxPrivate* given = nullptr;
    run([&] {
        given = new TextBoxPrivate(nullptr);
        box = std::make_unique<TextBox>(given);
    });
    EXPECT_EQ(box->getPrivateImpl(), static_cast<DisplayablePrivateIfc*>(static_cast<TextBoxPrivateIfc*>(given)));
    reached();
    run([&] { box.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~TextBoxPrivate()"));
}

TEST_P(TextBoxTest, CleanupDeletesTheSideOnce)
{
    made(0, true);
    run([&] { box->cleanup(); });
    EXPECT_EQ(box->getPrivateImpl(), nullptr);
    run([&] {
        box->cleanup();
        box.reset();
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~TextBoxPrivate2LineWP1()"));
}

TEST_P(TextBoxTest, SideIsMadeOnce)
{
    made(1, false);
    carryOut(GetParam(), *box, 0);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextBoxTest, ListenersAreHandedOnWhereTheyAre)
{
    testing::StrictMock<doubles::MockCommandListener> listener;
    made(1, false);
    unsigned int thread = 0;
    run([&] {
        thread = Threadable::currentThreadId();
        box->addCommandListener(&listener);
        box->removeCommandListener(&listener);
    });
    for (const doubles::Call& call : recorder.calls())
        EXPECT_EQ(call.thread, thread);
    EXPECT_THAT(reached(), ElementsAre(callText("TextBoxPrivate::addCommandListener", &listener),
                                       callText("TextBoxPrivate::removeCommandListener", &listener)));
}

TEST_P(TextBoxTest, RestDoesNothingAndAnswersWithWhatItBeginsWith)
{
    made(1, false);
    std::string text = "Milk";
    Ticker* const ticker = reinterpret_cast<Ticker*>(&text); ///< only handed on
    run([&] {
        box->insert(text, 2);
        box->setTextBoxType(static_cast<TextBox::TextBoxType>(7));
        box->setReadOnlyMode(true);
        box->setTicker(ticker);
        box->hideOptionsItem();
        EXPECT_EQ(box->getTextBoxType(), TextBox::ANY_TEXT);
        EXPECT_FALSE(box->getReadOnlyMode());
        EXPECT_EQ(box->getTicker(), nullptr);
        EXPECT_EQ(getCaretPosition(), 0);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TextBoxTest, CommandsAreTheSameOnEveryCall)
{
    run([&] {
        for (const auto& [command, type] :
             {std::pair{&TextBox::SELECT_COMMAND, 6}, {&TextBox::RIGHT_COMMAND, 9}, {&TextBox::BACK_COMMAND, 1}}) {
            EXPECT_EQ(command(), command());
            EXPECT_EQ(command()->getType(), type);
            EXPECT_EQ(command()->getBasicText(), "");
        }
    });
}

INSTANTIATE_FROM_BOTH_THREADS(TextBoxTest);

using QueuedTextBoxTest = test::SteppedTest;

TEST_F(QueuedTextBoxTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { const TextBox box(true); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
