// A KVX list as applications know it: its private side is the library's own, and its widget tells what has come of it.

#include "DisplayAPI/KVXList.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBoxWithTitle.h"

using namespace DisplayAPI;
using test::From;
using test::LiveRow;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 40, SET_TEXT = 44, CLEAN_UP = 1, GET_ITEMS = 31;

class KVXListTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    KVXListTest() { make(); }
    ~KVXListTest() override
    {
        run([&] { list.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    void make()
    {
        run([&] { list = std::make_unique<KVXList>(); });
    }

    KestrelListBoxWithTitle& widget()
    {
        return dynamic_cast<KestrelListBoxWithTitle&>(*list->getPrivateImpl()->getWidget());
    }

    /// The texts of the display lines that are in sight.
    std::vector<std::string> lines()
    {
        std::vector<std::string> texts;
        gui.call([&] {
            for (int line = 0; line < widget().systemWindowLines(); ++line)
                texts.push_back(widget().systemWindowText(line));
        });
        return texts;
    }

    std::string asText()
    {
        std::string text;
        gui.call([&] { text = list->getPrivateImpl()->serialise(); });
        return text;
    }

    void press(int key)
    {
        gui.call([&] { widget().Message({.wType = PM_KEY, .iData = key}); });
    }

    bool hasMoved()
    {
        bool moved = false;
        run([&] { moved = list->selectionHasChanged(); });
        return moved;
    }

    std::unique_ptr<KVXList> list;
};

TEST_P(KVXListTest, IsOfOneKindOnEveryPanel)
{
    for (const int variant : {0, 1, 2}) {
        test::setHardwareVariant(variant);
        make();
        EXPECT_EQ(list->getName(), "KVXList");
        EXPECT_EQ(widget().Type(), TYPE_LIST_WITH_TITLE);
        EXPECT_FALSE(list->hasBackItem());
        EXPECT_THAT(reached(), IsEmpty());
    }
}

TEST_P(KVXListTest, DisplayTextIsShownInItsLineWhichIsTheLastOne)
{
    run([&] {
        list->setDisplayText(1, "second");
        list->setDisplayText(0, "first");
    });
    EXPECT_THAT(lines(), ElementsAre("first"));
    run([&] { list->setDisplayText(1, "again"); });
    EXPECT_THAT(lines(), ElementsAre("first", "again"));
}

TEST_P(KVXListTest, TranslationIsLookedUpAndBelongsToTheList)
{
    run([&] {
        list->setDisplayText(2, new TranslationInfo("Account", nullptr, ": 7"));
        list->setDisplayText(2, new TranslationInfo("Balance", nullptr));
    });
    EXPECT_THAT(lines(), ElementsAre("", "", "Balance"));
}

TEST_P(KVXListTest, SameTranslationIsShownAnew)
{
    auto* const text = new TranslationInfo("Account", nullptr);
    run([&] {
        list->setDisplayText(0, text);
        list->setSystemWindowText(0, "other");
        list->setDisplayText(0, text);
    });
    EXPECT_THAT(lines(), ElementsAre("Account"));
}

TEST_P(KVXListTest, TextThatIsEmptyOrBlankRemovesItsLine)
{
    for (const std::string& blank : {std::string(), std::string(24, ' ')}) {
        run([&] {
            list->setDisplayText(0, "first");
            list->setDisplayText(2, "third");
            list->setDisplayText(2, new TranslationInfo(blank, nullptr));
        });
        EXPECT_THAT(lines(), ElementsAre("first"));
        EXPECT_EQ(widget().systemWindowText(2), "");
    }
}

TEST_P(KVXListTest, OtherBlanksAreAText)
{
    run([&] {
        list->setDisplayText(0, std::string(23, ' '));
        list->setDisplayText(1, "second");
    });
    EXPECT_THAT(lines(), ElementsAre(std::string(23, ' '), "second"));
}

TEST_P(KVXListTest, NoTextForgetsTheLinesTextAndLeavesWhatIsShown)
{
    run([&] {
        list->setDisplayText(0, new TranslationInfo("first", nullptr));
        list->setDisplayText(0, nullptr);
        list->setDisplayText(3, nullptr);
    });
    EXPECT_THAT(lines(), ElementsAre("first"));
}

TEST_P(KVXListTest, LinesWithoutAPlaceAreIgnored)
{
    run([&] {
        list->setDisplayText(0, "first");
        list->setDisplayText(6, "seventh");
        list->setDisplayText(0xFFFFFFFF, "last");
        list->setDisplayText(0xFFFFFFFF, "");
    });
    EXPECT_THAT(lines(), ElementsAre("first"));
}

TEST_P(KVXListTest, NumberAndColourOfLinesHaveNoEffect)
{
    run([&] {
        list->setDisplayText(0, "first");
        list->setNumDisplayLines(4);
        list->setDisplayColour(2);
        list->selectionHasChanged();
    });
    EXPECT_THAT(lines(), ElementsAre("first"));
}

TEST_P(KVXListTest, ClearingAndTitlesAreSaidOnStandardOutput)
{
    TranslationInfo title("Title", nullptr);
    testing::internal::CaptureStdout();
    run([&] {
        list->setDisplayText(0, "first");
        list->clearDisplay();
        list->setTitle("Title");
        list->setTitle(&title);
    });
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "void KVXListPrivate::cleartitle() NOT implemented on WP_LO Please remove this printf??\n"
              "void KVXListPrivate::setTitle( Ostring& newTitle ) is NOT impl\n"
              "void KVXListPrivate::setTitle( TranslationInfo* newTitle ) is NOT impl WP_LO\n");
    EXPECT_THAT(lines(), ElementsAre("first"));
    EXPECT_TRUE(widget().title().empty());
}

TEST_P(KVXListTest, SelectionHasChangedOnceAfterTheUserHasMovedIt)
{
    run([&] {
        for (const char* row : {"Ada", "Bert", "Cleo"})
            list->append(row);
        list->setSelectedIndex(1);
    });
    EXPECT_FALSE(hasMoved());
    press(PK_DOWN);
    EXPECT_TRUE(hasMoved());
    EXPECT_FALSE(hasMoved());
    press(PK_DOWN);
    EXPECT_FALSE(hasMoved());
    press(PK_UP);
    EXPECT_TRUE(hasMoved());
}

TEST_P(KVXListTest, RowsAreThoseOfAList)
{
    auto* const first = new ListItem("first", true);
    auto* const second = new ListItem("second", true);
    run([&] {
        list->append(second);
        list->insertAt(first, -1);
        list->append("third");
        EXPECT_EQ(list->size(), 3);
        EXPECT_EQ(list->getSelected(), second);
        list->setSelected(first);
        EXPECT_EQ(list->getSelectedIndex(), 0);
        EXPECT_EQ(list->removeAt(0), first);
        list->remove(second);
        EXPECT_EQ(list->size(), 1);
        list->clear();
        EXPECT_EQ(list->size(), 0);
        EXPECT_EQ(list->getSelectedIndex(), -1);
        delete first;
        delete second;
    });
}

TEST_P(KVXListTest, AlternativeDisplayIsThisOne)
{
    run([&] {
        list->appendToAlternativeDisplay(new ListItem("row", true));
        EXPECT_EQ(list->size(), 1);
    });
}

TEST_P(KVXListTest, OperationsOfOtherListsDoNothing)
{
    run([&] {
        list->append("row");
        reached();
        list->localeChanged("de_DE");
        list->restoreFocusAndShowHighlight();
        list->setSelectionHighlight(false);
        list->setUsedWithTab(true);
        list->setWrapAround(true);
    });
    EXPECT_EQ(recorder.count("ListItemPrivate::localeChanged"), 0);
}

TEST_P(KVXListTest, EmptyOneIsAnObjectWithoutContents)
{
    EXPECT_EQ(asText(), "object:\nname:KestrelListBox\nend:\n");
    run([&] { list->setDisplayText(0, "first"); });
    EXPECT_EQ(asText(), "object:\nname:KestrelListBox\n"
                        "subitem:\nname:SystemWindow\nstring0:first\nendsubitem:\nend:\n");
}

TEST_P(KVXListTest, DestructorReleasesRowsAndSide)
{
    auto* const row = new LiveRow;
    run([&] {
        list->append(row);
        list->setDisplayText(0, new TranslationInfo("Account", nullptr));
        list.reset();
    });
    EXPECT_FALSE(LiveRow::isAlive(row));
}

TEST_P(KVXListTest, CleanedUpOneAnswersNothing)
{
    gui.call([&] { list->cleanup(); });
    run([&] {
        list->setDisplayText(0, "first");
        EXPECT_FALSE(list->selectionHasChanged());
        EXPECT_EQ(list->size(), -1);
    });
    EXPECT_EQ(list->getPrivateImpl(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, KVXListTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedKVXListTest : public test::SteppedTest {};

TEST_F(QueuedKVXListTest, MakingPostsAndDeletingCarriesOutWhatIsQueued)
{
    test::Worker worker([] {
        KVXList list;
        list.setDisplayText(0, new TranslationInfo("Account", nullptr));
        list.setDisplayText(1, "second");
    });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, SET_TEXT + 1, SET_TEXT, GET_ITEMS));
    for (int i = 0; i < 4; ++i)
        gui.step();
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CLEAN_UP));
    gui.runAll();
}

} // namespace
