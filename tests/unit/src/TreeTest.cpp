#include "DisplayAPI/Tree.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "DisplayAPI/TreePrivateIfc.h"
#include "doubles/Mocks.h"
#include "unit/src/FacadeTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class TreeTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~TreeTest() override
    {
        run([&] { tree.reset(); });
        HardwareVersion::setHWVariant(HardwareVersion::AS_BUILT);
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    std::vector<std::string> made()
    {
        run([&] { tree = std::make_unique<Tree>(); });
        expectAllOnGuiThread();
        return reached();
    }

    TreeNode* add(const std::string& text, int id = 0)
    {
        TreeNode* node = nullptr;
        run([&] { node = tree->addNode(text, id); });
        return node;
    }

    static TreeNode* addBelow(TreeNode* above, const std::string& text) { return above->addNode(text, 0); }

    TreeNode* at(int index)
    {
        TreeNode* node = nullptr;
        run([&] { node = tree->findItemAt(index); });
        return node;
    }

    std::unique_ptr<Tree> tree;
    testing::NiceMock<doubles::MockCommandListener> listener;
};

TEST_P(TreeTest, SideIsThatOfTheHardwareWhateverTheApplicationsVariant)
{
    for (const auto& [hardware, side] :
         {std::pair{0, "TreePrivateWP1"}, std::pair{1, "TreePrivateWP1"}, std::pair{2, "TreePrivate"},
          std::pair{7, "TreePrivate"}, std::pair{8, "TreePrivateWP1"}, std::pair{9, "TreePrivate"},
          std::pair{-7, "TreePrivate"}}) {
        for (const int application : {0, 1}) {
            HardwareVersion::setHWVariant(hardware);
            test::setHardwareVariant(application);
            const auto calls = made();
            EXPECT_THAT(calls, ElementsAre(callText(side, tree.get()))) << hardware;
            EXPECT_EQ(tree->getName(), "Tree");
            run([&] { tree.reset(); });
            EXPECT_THAT(reached(), ElementsAre(std::string("~") + side + "()"));
        }
    }
}

TEST_P(TreeTest, NodeThatIsAddedIsTheTreesAndHasItsTextAndNumber)
{
    made();
    TreeNode* const node = add("Netzwerk", 4711);
    ASSERT_NE(node, nullptr);
    expectAllOnGuiThread();
    EXPECT_EQ(node->getId(), 4711);
    EXPECT_EQ(node->getText(), "Netzwerk");
    EXPECT_THAT(tree->getTreeNodes(), ElementsAre(node));
    reached();
    run([&] { tree.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~TreePrivate()", "~TreeNodePrivate()"));
}

TEST_P(TreeTest, TranslatedNodeIsInTheLanguageOfTheMoment)
{
    made();
    TranslationInfo text{"Settings.Network", nullptr, " 2"};
    TreeNode* node = nullptr;
    run([&] { node = tree->addNode(&text, 3); });
    EXPECT_EQ(node->getText(), "Settings.Network 2");
    run([&] { node = tree->addNode(static_cast<TranslationInfo*>(nullptr), 3); });
    EXPECT_EQ(node->getText(), "");
}

TEST_P(TreeTest, ItemsAreCountedFromTheFirstOneEachBeforeThoseBelow)
{
    made();
    TreeNode* const first = add("Network");
    TreeNode* const second = add("Telephone");
    TreeNode *address = nullptr, *mask = nullptr, *byte = nullptr;
    run([&] {
        address = addBelow(first, "Address");
        mask = addBelow(first, "Mask");
        byte = addBelow(mask, "Byte");
    });
    EXPECT_EQ(at(0), first);
    EXPECT_EQ(at(1), address);
    EXPECT_EQ(at(2), mask);
    EXPECT_EQ(at(3), byte);
    EXPECT_EQ(at(4), second);
    EXPECT_EQ(at(5), nullptr);
    EXPECT_EQ(at(-1), nullptr);
}

TEST_P(TreeTest, SecondChildIsNumberTwoAndTheNextOnTopNumberThree)
{
    made();
    TreeNode* const first = add("a");
    TreeNode* second = nullptr;
    run([&] {
        addBelow(first, "a1");
        second = addBelow(first, "a2");
    });
    TreeNode* const next = add("b");
    EXPECT_EQ(at(0), first);
    EXPECT_EQ(at(2), second);
    EXPECT_EQ(at(3), next);
}

TEST_P(TreeTest, EmptyTreeHasNoItem)
{
    made();
    EXPECT_EQ(at(0), nullptr);
    EXPECT_THAT(tree->getTreeNodes(), IsEmpty());
}

TEST_P(TreeTest, CleanUpDeletesTheSideBeforeTheNodesAndTheTreeIsEmptyThen)
{
    made();
    TreeNode* const node = add("a");
    run([&] { addBelow(node, "b"); });
    reached();
    run([&] { tree->cleanup(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~TreePrivate()", "~TreeNodePrivate()", "~TreeNodePrivate()"));
    EXPECT_EQ(at(0), nullptr);
    EXPECT_EQ(tree->getPrivateImpl(), nullptr);
}

TEST_P(TreeTest, DeepTreeIsDeletedWithoutADeepStack)
{
    made();
    TreeNode* const first = add("0");
    gui.call([&] {
        TreeNode* node = first;
        for (int depth = 0; depth < 50'000; ++depth)
            node = node->addNode("x", depth);
    });
    recorder.clear();
    run([&] { tree.reset(); });
    EXPECT_EQ(recorder.count("~TreeNodePrivate"), 50'001);
}

TEST_P(TreeTest, NullNodeAndOneWithoutASideAreIgnored)
{
    made();
    TreeNode* const bare = add("a");
    run([&] { bare->cleanup(); });
    reached();
    run([&] {
        tree->expandNode(nullptr, true);
        tree->collapseNode(nullptr);
        tree->expandNode(bare, true);
        tree->collapseNode(bare);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TreeTest, UnknownIconTravelsUnchanged)
{
    made();
    run([&] { tree->setTreeIcon(static_cast<Tree::TreeIcon>(4711)); });
    EXPECT_THAT(reached(), ElementsAre("TreePrivate::setTreeIcon(4711)"));
}

TEST_P(TreeTest, ListenersReachTheSideOnTheGuiThread)
{
    made();
    CommandListener* const heard = &listener;
    run([&] {
        tree->addCommandListener(heard);
        tree->removeCommandListener(heard);
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText("TreePrivate::addCommandListener", heard),
                                       callText("TreePrivate::removeCommandListener", heard)));
    run([&] {
        tree->cleanup();
        tree->addCommandListener(heard);
        tree->removeCommandListener(heard);
    });
}

TEST_P(TreeTest, LocaleReachesEveryNode)
{
    made();
    TreeNode* const node = add("a");
    run([&] { addBelow(node, "b"); });
    add("c")->cleanup();
    reached();
    gui.call([&] { tree->localeChanged("de_DE"); });
    EXPECT_THAT(reached(),
                ElementsAre("TreeNodePrivate::localeChanged(\"de_DE\")", "TreeNodePrivate::localeChanged(\"de_DE\")"));
}

TEST_P(TreeTest, SecondRequestToMakeItLeavesTheFirstSide)
{
    made();
    add("a");
    reached();
    carryOut(GetParam(), *tree, 0);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TreeTest, WhatDoesNothingReachesNobody)
{
    made();
    TreeNode* const node = add("a");
    reached();
    run([&] {
        tree->setUsedWithTab(true, nullptr);
        tree->setWrapAround(true);
        tree->restoreFocusAndShowHighlight();
        tree->removeHighLight();
        tree->insertChildNode(node, node, 0);
        tree->removeChildNode(node, 0);
    });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_THAT(tree->getTreeNodes(), ElementsAre(node));
}

INSTANTIATE_FROM_BOTH_THREADS(TreeTest);

TEST(TreeCommandTest, HighlightChangedIsOneObject)
{
    EXPECT_NE(Tree::HIGHLIGHT_CHANGED_COMMAND(), nullptr);
    EXPECT_EQ(Tree::HIGHLIGHT_CHANGED_COMMAND(), Tree::HIGHLIGHT_CHANGED_COMMAND());
}

} // namespace
