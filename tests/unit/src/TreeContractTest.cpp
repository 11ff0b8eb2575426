// What a tree promises of each of its operations.

#include "DisplayAPI/Tree.h"

#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEANUP = 1;

/// A tree of one node; of none without a side.
struct Trees : test::WidgetSubject<Tree> {
    explicit Trees(bool hasSide)
    {
        doubles::Answers::instance().reset();
        facade = std::make_unique<Tree>();
        if (hasSide)
            node = facade->addNode("Network", 1);
        else
            endSide(CLEANUP);
        doubles::Answers::instance().node = node;
    }

    static std::string arrival(const std::string& call) { return test::sideName("TreePrivate") + "::" + call; }

    CommandListener* heard() { return &listener; }

    TreeNode* node = nullptr;
    testing::NiceMock<doubles::MockCommandListener> listener;
    TranslationInfo text{"Settings.Network", nullptr};
};

const TreeNodePrivateIfc* sideOf(TreeNode* node)
{
    return node->getPrivateImpl();
}

std::string addsTheLast(Trees& t)
{
    return callText("addNode", sideOf(t->getTreeNodes().back()));
}

const bool TREE_CHECKED =
    test::Contract<Trees>("TreeContractTest")
        .waits("cleanup", CLEANUP, [](Trees& t) { t->cleanup(); })
        .waits("addNode", 3, [](Trees& t) { t->addNode("Telephone", 7); })
        .record({.text1 = "Telephone", .int1 = 7})
        .arrives(addsTheLast)
        .waits("addTranslatedNode", 4, [](Trees& t) { t->addNode(&t.text, 7); })
        .record([](Trees& t) { return Filling{.int1 = 7, .ptr1 = &t.text}; })
        .arrives(addsTheLast)
        .posts("expandNode", 6, [](Trees& t) { t->expandNode(t.node, true); })
        .record([](Trees& t) { return Filling{.bool1 = true, .ptr1 = t.node}; })
        .arrives([](Trees& t) { return callText("expandNode", sideOf(t.node), true); })
        .posts("collapseNode", 7, [](Trees& t) { t->collapseNode(t.node); })
        .record([](Trees& t) { return Filling{.ptr1 = t.node}; })
        .arrives([](Trees& t) { return callText("collapseNode", sideOf(t.node)); })
        .posts("collapseTreeToLevel", 8, [](Trees& t) { t->collapseTreeToLevel(2); })
        .record({.int1 = 2})
        .arrives("collapseTreeToLevel(2)")
        .posts("setTreeName", 9, [](Trees& t) { t->setTreeName("Settings"); })
        .record({.text1 = "Settings"})
        .arrives("setTreeName(\"Settings\")")
        .posts("setTranslatedTreeName", 10, [](Trees& t) { t->setTreeName(&t.text); })
        .record([](Trees& t) { return Filling{.ptr1 = &t.text}; })
        .arrives([](Trees& t) { return callText("setTreeName", &t.text); })
        .posts("setTreeIcon", 11, [](Trees& t) { t->setTreeIcon(Tree::MESSAGES); })
        .record({.int1 = 3})
        .arrives("setTreeIcon(3)")
        .waits(
            "getSelected", 5, [](Trees& t) { return t.node; }, nullptr, [](Trees& t) { return t->getSelected(); })
        .arrives("getSelected()")
        .waits(
            "getTreeNodes", 12, [](Trees& t) { return std::vector{t.node}; }, {},
            [](Trees& t) { return t->getTreeNodes(); })
        .waits(
            "findItemAt", 13, [](Trees& t) { return t.node; }, nullptr, [](Trees& t) { return t->findItemAt(0); })
        .record({.int1 = 0})
        .waits("addCommandListener", 14, [](Trees& t) { t->addCommandListener(&t.listener); })
        .record([](Trees& t) { return Filling{.ptr1 = t.heard()}; })
        .arrives([](Trees& t) { return callText("addCommandListener", t.heard()); })
        .waits("removeCommandListener", 15, [](Trees& t) { t->removeCommandListener(&t.listener); })
        .record([](Trees& t) { return Filling{.ptr1 = t.heard()}; })
        .arrives([](Trees& t) { return callText("removeCommandListener", t.heard()); })
        .completes({-1, 2, 16, 99})
        .check();

} // namespace
