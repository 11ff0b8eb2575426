#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/Tree.h"
#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreePrivateIfc.h"
#include "doubles/Mocks.h"
#include "support/Keys.h"
#include "support/RowsOwner.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

using namespace DisplayAPI;
using testing::HasSubstr;
using testing::Not;

namespace {

class Numbering : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return key + std::to_string(++mAsked); }

private:
    int mAsked = 0;
};

/// A tree a(b(c) d) e on the screen.
class TreePrivateTest : public testing::TestWithParam<host::Variant> {
protected:
    TreePrivateTest()
    {
        display.show();
        a = tree.addNode("a", 1);
        b = a->addNode("b", 2);
        c = b->addNode("c", 3);
        d = a->addNode("d", 4);
        e = tree.addNode("e", 5);
        tree.addCommandListener(&listener);
        display.setCurrent(&tree);
    }

    ~TreePrivateTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    KestrelListBox& box() { return *dynamic_cast<KestrelListBox*>(tree.getPrivateImpl()->getWidget()); }
    std::string shown() { return test::lettersOf(box()); }

    /// As test::keyCode() has them.
    void press(const std::string& keys)
    {
        for (const char key : keys)
            box().Message(test::keyMessage(test::keyCode(key)));
    }

    void expectHighlightChanges(int times)
    {
        EXPECT_CALL(listener, postCommandAction(Tree::HIGHLIGHT_CHANGED_COMMAND(), &tree)).Times(times);
    }

    test::OnPanel panel{GetParam()};
    testing::StrictMock<doubles::MockCommandListener> listener;
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    Tree tree;
    TreeNode *a = nullptr, *b = nullptr, *c = nullptr, *d = nullptr, *e = nullptr;
};

TEST_P(TreePrivateTest, RightOpensAndThenGoesToTheFirstBelow)
{
    press(">");
    EXPECT_EQ(shown(), isSmall() ? "[a]bd←e" : "[a]bde");
    expectHighlightChanges(1);
    press(">");
    EXPECT_EQ(tree.getSelected(), b);
    press(">");
    EXPECT_EQ(tree.getSelected(), b);
    EXPECT_EQ(shown(), isSmall() ? "a[b]c←d←e" : "a[b]cde");
}

TEST_P(TreePrivateTest, LeftClosesGoesToTheOneAboveAndThenOut)
{
    tree.expandNode(a, true);
    box().setCurrentRow(2);
    ASSERT_EQ(tree.getSelected(), c);
    expectHighlightChanges(2);
    press("<");
    EXPECT_EQ(tree.getSelected(), b);
    press("<");
    EXPECT_EQ(shown(), isSmall() ? "a[b]d←e" : "a[b]de");
    press("<<");
    EXPECT_EQ(shown(), "[a]e");
    EXPECT_CALL(listener, postCommandAction(List::BACK_COMMAND(), &tree));
    press("<");
}

TEST_P(TreePrivateTest, OkOpensAndClosesAndChoosesWhatHasNothingBelow)
{
    press("!");
    EXPECT_EQ(shown(), isSmall() ? "[a]bd←e" : "[a]bde");
    press("!");
    EXPECT_EQ(shown(), "[a]e");
    expectHighlightChanges(1);
    press("v");
    EXPECT_CALL(listener, postCommandAction(List::SELECT_COMMAND(), &tree));
    press("!");
    EXPECT_EQ(tree.getSelected(), e);
}

TEST_P(TreePrivateTest, RightOnWhatHasNothingBelowDoesNothing)
{
    expectHighlightChanges(1);
    press("v>");
    EXPECT_EQ(shown(), "a[e]");
}

TEST_P(TreePrivateTest, ProtectedNodeIsOpenedByTheApplicationAlone)
{
    EXPECT_FALSE(a->getProtected());
    a->setProtected(true);
    EXPECT_TRUE(a->getProtected());
    press(">");
    EXPECT_EQ(shown(), "[a]e");
    EXPECT_CALL(listener, postCommandAction(List::SELECT_COMMAND(), &tree));
    press("!");
    EXPECT_EQ(shown(), "[a]e");
    tree.expandNode(a, false);
    EXPECT_EQ(shown(), isSmall() ? "[a]bd←e" : "[a]bde");
    press("<");
    EXPECT_EQ(shown(), "[a]e");
}

TEST_P(TreePrivateTest, InactiveNodeIsNeitherOpenedNorChosen)
{
    a->setInactive(true);
    e->setInactive(true);
    expectHighlightChanges(1);
    press(">!v!");
    EXPECT_EQ(shown(), "a[e]");
}

TEST_P(TreePrivateTest, NodeIsOpenedWithWhatStandsAboveIt)
{
    tree.expandNode(b, false);
    EXPECT_EQ(shown(), isSmall() ? "[a]bc←d←e" : "[a]bcde");
    tree.collapseNode(a);
    EXPECT_EQ(shown(), "[a]e");
}

TEST_P(TreePrivateTest, TreeClosesFromALevelOn)
{
    tree.expandNode(a, true);
    tree.collapseTreeToLevel(7);
    tree.collapseTreeToLevel(2);
    EXPECT_EQ(shown(), isSmall() ? "[a]bc←d←e" : "[a]bcde");
    tree.collapseTreeToLevel(1);
    EXPECT_EQ(shown(), isSmall() ? "[a]bd←e" : "[a]bde");
    tree.expandNode(b, false);
    tree.collapseTreeToLevel(-1);
    EXPECT_EQ(shown(), "[a]e");
    press(">");
    EXPECT_EQ(shown(), isSmall() ? "[a]bd←e" : "[a]bde");
}

TEST_P(TreePrivateTest, RowThatLeadsBackIsTheSmallPanelsAndMayBeLeftOut)
{
    b->removeBack(true);
    tree.expandNode(a, true);
    EXPECT_EQ(shown(), isSmall() ? "[a]bcd←e" : "[a]bcde");
    b->removeBack(false);
    EXPECT_EQ(shown(), isSmall() ? "[a]bc←d←e" : "[a]bcde");
}

/// The small panel's.
class TreeWayBackTest : public TreePrivateTest {};

TEST_P(TreeWayBackTest, RowThatLeadsBackIsNoNodeAndClosesItsOwn)
{
    press(">");
    expectHighlightChanges(4);
    press("vvv");
    EXPECT_EQ(shown(), "abd[←]e");
    EXPECT_EQ(tree.getSelected(), nullptr);
    test::Told told(display);
    press("!");
    EXPECT_EQ(shown(), "[a]e");
    EXPECT_EQ(told.take(), 1);
}

TEST_P(TreePrivateTest, NewNodesAreShownWhereTheirParentIsOpen)
{
    tree.expandNode(a, false);
    a->addNode("f", 6);
    b->addNode("g", 7);
    tree.addNode("h", 8);
    EXPECT_EQ(shown(), isSmall() ? "[a]bdf←eh" : "[a]bdfeh");
}

TEST_P(TreePrivateTest, NameStandsAboveAndIsInTheScreenAsText)
{
    tree.setTreeIcon(Tree::SETTINGS);
    tree.setTreeName("Settings");
    const std::string text = tree.getPrivateImpl()->serialise();
    EXPECT_THAT(text, HasSubstr("Settings"));
    EXPECT_THAT(text, HasSubstr("name:Peg_TreeListItem\nstring0:a\n"));
    tree.setTreeName("");
    EXPECT_THAT(tree.getPrivateImpl()->serialise(), Not(HasSubstr("Settings")));
}

TEST_P(TreePrivateTest, IconStandsAloneWhereThereIsNoNameAndAnUnknownOneIsNone)
{
    const int top = box().rowArea(0).top;
    tree.setTreeIcon(static_cast<Tree::TreeIcon>(7));
    tree.setTreeIcon(static_cast<Tree::TreeIcon>(-1));
    EXPECT_EQ(box().rowArea(0).top, top);
    tree.setTreeIcon(Tree::PICTURES);
    EXPECT_EQ(box().rowArea(0).top > top, isSmall());
    tree.setTreeIcon(Tree::NO_ICON);
    EXPECT_EQ(box().rowArea(0).top, top);
}

TEST_P(TreePrivateTest, LanguageReachesNameAndNodesShownOrNot)
{
    Numbering translator;
    TranslationInfo name{"Name", &translator}, text{"Node", &translator};
    tree.setTreeName(&name);
    TreeNode* const node = b->addNode(&text, 0);
    display.localeChanged("de_DE");
    EXPECT_THAT(tree.getPrivateImpl()->serialise(), HasSubstr("Name4"));
    tree.expandNode(node, false);
    EXPECT_EQ(test::textOf(box().itemAt(3)), "Node3");
    tree.setTreeName("");
    display.setCurrent(nullptr);
    tree.cleanup();
}

TEST_P(TreePrivateTest, ObserverIsToldOnceOfALocale)
{
    Numbering translator;
    TranslationInfo text{"Node", &translator};
    tree.addNode(&text, 0);
    tree.addNode(&text, 0);
    test::Told told(display);
    tree.localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the application";
    EXPECT_EQ(test::textOf(box().itemAt(2)), "Node3");
    display.localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the display";
    display.setCurrent(nullptr);
    told.take();
    tree.localeChanged("en_GB");
    EXPECT_EQ(told.take(), 0) << "while the tree is not shown";
    tree.cleanup();
}

TEST_P(TreePrivateTest, DeletedNodesSideTakesItsRowsAlong)
{
    tree.expandNode(a, true);
    b->cleanup();
    EXPECT_EQ(shown(), isSmall() ? "[a]d←e" : "[a]de");
}

TEST_P(TreePrivateTest, ObserverIsToldOnceOfEachChangeThatIsSeen)
{
    tree.expandNode(a, false);
    test::Told told(display);
    a->addNode("f", 6);
    EXPECT_EQ(told.take(), 1) << "a new row";
    b->addNode("g", 7)->addNode("h", 8);
    EXPECT_EQ(told.take(), 0) << "rows that are not shown";
    d->addNode("i", 9);
    EXPECT_EQ(told.take(), isSmall() ? 0 : 1) << "the mark of the first one below";
    a->setInactive(true);
    a->setProtected(true);
    EXPECT_EQ(told.take(), 2);
    a->setInactive(true);
    a->setProtected(true);
    EXPECT_EQ(told.take(), 0) << "as it was";
    a->removeBack(true);
    EXPECT_EQ(told.take(), isSmall() ? 1 : 0);
    b->cleanup();
    EXPECT_EQ(told.take(), 1) << "a row with what stands below it";
}

TEST_P(TreePrivateTest, WhatChangesIsPainted)
{
    tree.expandNode(a, false);
    test::expectPaintedAsAnew([&] { a->setProtected(true); });
    test::expectPaintedAsAnew([&] { a->setProtected(false); });
    test::expectPaintedAsAnew([&] { d->setInactive(true); });
    test::expectPaintedAsAnew([&] { d->addNode("f", 6); });
    test::expectPaintedAsAnew([&] { a->removeBack(true); });
    test::expectPaintedAsAnew([&] { tree.expandNode(a, true); });
    test::expectPaintedAsAnew([&] { c->cleanup(); });
    test::expectPaintedAsAnew([&] { b->cleanup(); });
}

TEST_P(TreePrivateTest, ObserverIsToldOfAMarkThatGoes)
{
    test::Told told(display);
    TreeNode* const f = tree.addNode("f", 6);
    TreeNode* const g = f->addNode("g", 7);
    box().setCurrentRow(2);
    told.take();
    g->cleanup();
    EXPECT_EQ(told.take(), 1);
}

/// Whoever is told may delete the tree: each of these is the last thing that happens.
TEST_P(TreePrivateTest, ObserverMayDeleteTheTree)
{
    using Change = std::function<void(Tree&, TreeNode&)>;
    for (const Change& change : {Change([](Tree&, TreeNode&node) { node.addNode("x", 0); }),
                                 Change([](Tree&, TreeNode&node) { node.setInactive(true); }),
                                 Change([](Tree&, TreeNode&node) { node.setProtected(true); }),
                                 Change([](Tree&, TreeNode&node) { node.cleanup(); }),
                                 Change([](Tree&changed, TreeNode&) { changed.addNode("x", 0); }),
                                 Change([](Tree&changed, TreeNode&node) { changed.expandNode(&node, true); })}) {
        auto passing = std::make_unique<Tree>();
        TreeNode* const node = passing->addNode("p", 0);
        node->addNode("q", 0);
        passing->expandNode(node, false);
        display.setCurrent(passing.get());
        const test::Told told(display, [&] { std::exchange(passing, nullptr).reset(); });
        change(*passing, *node);
        EXPECT_EQ(passing, nullptr);
    }
}

TEST_P(TreePrivateTest, ObserverIsToldWhenTheListenerHasHeardAndTheRowsAreInPlace)
{
    tree.expandNode(a, true);
    box().setCurrentRow(2);
    ASSERT_EQ(tree.getSelected(), c);
    std::vector<TreeNode*> seen;
    const test::Told told(display, [&] { seen.push_back(tree.getSelected()); });
    EXPECT_CALL(listener, postCommandAction(Tree::HIGHLIGHT_CHANGED_COMMAND(), &tree)).WillOnce([&](auto&&...) {
        EXPECT_TRUE(seen.empty());
        return true;
    });
    press("<");
    EXPECT_EQ(seen, std::vector{b});
}

TEST_P(TreePrivateTest, OpeningEverythingLeavesTheCurrentRow)
{
    tree.expandNode(a, false);
    box().setCurrentRow(2);
    ASSERT_EQ(tree.getSelected(), d);
    tree.expandNode(a, true);
    EXPECT_EQ(tree.getSelected(), d);
    EXPECT_EQ(shown(), isSmall() ? "abc←[d]←e" : "abc[d]e");
}

TEST_P(TreePrivateTest, NewNodeIsInTheTreeWhenTheObserverIsTold)
{
    std::size_t onTop = 0, below = 0;
    tree.expandNode(a, false);
    const test::Told told(display, [&] {
        onTop = tree.getTreeNodes().size();
        below = a->getChildNodes().size();
    });
    tree.addNode("f", 6);
    EXPECT_EQ(onTop, 3u);
    a->addNode("g", 7);
    EXPECT_EQ(below, 3u);
}

TEST_P(TreePrivateTest, TreeThatIsDeletedOnTheScreenLeavesIt)
{
    auto passing = std::make_unique<Tree>();
    passing->addNode("x", 0)->addNode("y", 0);
    display.setCurrent(passing.get());
    passing.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

INSTANTIATE_ON_PANELS(TreePrivateTest);
INSTANTIATE_TEST_SUITE_P(Panel, TreeWayBackTest, testing::Values(host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
