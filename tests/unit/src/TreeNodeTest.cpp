#include "DisplayAPI/TreeNode.h"

#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "unit/src/FacadeTest.h"
#include "utilities/Threadable.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TreeNodeTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~TreeNodeTest() override
    {
        run([&] { node.reset(); });
        HardwareVersion::setHWVariant(HardwareVersion::AS_BUILT);
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    template <typename Text>
    std::vector<std::string> made(Text text)
    {
        run([&] { node = std::make_unique<TreeNode>(text, 7); });
        expectAllOnGuiThread();
        return reached();
    }

    std::unique_ptr<TreeNode> node;
};

TEST_P(TreeNodeTest, SideIsThatOfTheHardware)
{
    for (const auto& [hardware, side] :
         {std::pair{0, "TreeNodePrivateWP1"}, std::pair{1, "TreeNodePrivateWP1"}, std::pair{2, "TreeNodePrivate"},
          std::pair{8, "TreeNodePrivateWP1"}, std::pair{9, "TreeNodePrivate"}}) {
        HardwareVersion::setHWVariant(hardware);
        const std::string text = "Network";
        const auto calls = made(text);
        EXPECT_THAT(calls, ElementsAre(callText(side, node.get(), text)));
        run([&] { node.reset(); });
        EXPECT_THAT(reached(), ElementsAre(std::string("~") + side + "()"));
    }
}

TEST_P(TreeNodeTest, SideOfATranslationIsThatOfTheHardware)
{
    TranslationInfo text{"Settings.Network", nullptr};
    for (const auto& [hardware, side] : {std::pair{8, "TreeNodePrivateWP1"}, std::pair{2, "TreeNodePrivate"}}) {
        HardwareVersion::setHWVariant(hardware);
        const auto calls = made(&text);
        EXPECT_THAT(calls, ElementsAre(callText(side, node.get(), std::string("Settings.Network"))));
        EXPECT_EQ(node->getText(), "Settings.Network");
        EXPECT_EQ(node->getId(), 7);
        run([&] { node.reset(); });
        reached();
    }
}

TEST_P(TreeNodeTest, ChildrenKeepTheirOrderAndGoWithTheirParent)
{
    made(std::string("a"));
    TreeNode *first = nullptr, *second = nullptr;
    run([&] {
        first = node->addNode("b", 1);
        second = node->addNode("c", 2);
        first->addNode("d", 3);
    });
    expectAllOnGuiThread();
    EXPECT_THAT(node->getChildNodes(), ElementsAre(first, second));
    reached();
    run([&] { node->cleanup(); });
    expectAllOnGuiThread();
    EXPECT_EQ(recorder.count("~TreeNodePrivate"), 4);
    EXPECT_THAT(node->getChildNodes(), IsEmpty());
    EXPECT_EQ(node->getPrivateImpl(), nullptr);
}

TEST_P(TreeNodeTest, ChildWithoutASideAboveItIsKeptAllTheSame)
{
    made(std::string("a"));
    run([&] { node->cleanup(); });
    TreeNode* child = nullptr;
    run([&] { child = node->addNode("b", 1); });
    EXPECT_THAT(node->getChildNodes(), ElementsAre(child));
}

TEST_P(TreeNodeTest, InsertingAndRemovingDoNothing)
{
    made(std::string("a"));
    TreeNode* child = nullptr;
    run([&] { child = node->addNode("b", 1); });
    reached();
    run([&] {
        node->insertNode(child, 0);
        node->removeNode(0);
    });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_THAT(node->getChildNodes(), ElementsAre(child));
}

TEST_P(TreeNodeTest, SecondRequestToMakeItLeavesTheFirstSide)
{
    made(std::string("a"));
    for (const int code : {0, 1})
        carryOut(GetParam(), *node, code);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TreeNodeTest, TranslatorIsAskedOnTheGuiThread)
{
    struct Noting : TranslatorIfc {
        std::string translate(const std::string& key) override
        {
            thread = Threadable::currentThreadId();
            return "de:" + key;
        }
        unsigned int thread = 0;
    } translator;
    TranslationInfo text{"Network", &translator};
    made(&text);
    translator.thread = 0;
    std::string shown;
    run([&] { shown = node->getText(); });
    EXPECT_EQ(shown, "de:Network");
    EXPECT_EQ(translator.thread, gui.threadId());
    run([&] { node->cleanup(); });
    run([&] { shown = node->getText(); });
    EXPECT_EQ(shown, "de:Network");
}

INSTANTIATE_FROM_BOTH_THREADS(TreeNodeTest);

} // namespace
