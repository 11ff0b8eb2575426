// What a node of a tree promises of each of its operations.

#include "DisplayAPI/TreeNode.h"

#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEANUP = 5;

struct Nodes : test::WidgetSubject<TreeNode> {
    explicit Nodes(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().isSelected = true;
        facade = std::make_unique<TreeNode>("Network", 1);
        if (hasSide)
            child = facade->addNode("Address", 2);
        else
            endSide(CLEANUP);
    }

    static std::string arrival(const std::string& call) { return test::sideName("TreeNodePrivate") + "::" + call; }

    TreeNode* child = nullptr; ///< none without a side
    TranslationInfo text{"Settings.Network", nullptr};
};

std::string addsTheLast(Nodes& n)
{
    return callText("addNode", static_cast<const void*>(n->getChildNodes().back()->getPrivateImpl()));
}

const bool TREE_NODE_CHECKED = test::Contract<Nodes>("TreeNodeContractTest")
                                   .waits("addNode", 2, [](Nodes& n) { n->addNode("Address", 7); })
                                   .record({.text1 = "Address", .int1 = 7})
                                   .arrives(addsTheLast)
                                   .waits("addTranslatedNode", 3, [](Nodes& n) { n->addNode(&n.text, 7); })
                                   .record([](Nodes& n) { return Filling{.int1 = 7, .ptr1 = &n.text}; })
                                   .arrives(addsTheLast)
                                   .posts("setInactive", 4, [](Nodes& n) { n->setInactive(true); })
                                   .record({.bool1 = true})
                                   .arrives("setInactive(true)")
                                   .waits("cleanup", CLEANUP, [](Nodes& n) { n->cleanup(); })
                                   .posts("setProtected", 6, [](Nodes& n) { n->setProtected(true); })
                                   .record({.bool1 = true})
                                   .arrives("setProtected(true)")
                                   .waits("getProtected", 7, true, false, [](Nodes& n) { return n->getProtected(); })
                                   .arrives("getProtected()")
                                   .posts("removeBack", 8, [](Nodes& n) { n->removeBack(true); })
                                   .record({.bool1 = true})
                                   .arrives("removeBack(true)")
                                   .waits(
                                       "getChildNodes", 9, [](Nodes& n) { return std::vector{n.child}; }, {},
                                       [](Nodes& n) { return n->getChildNodes(); })
                                   .completes({-1, 11, 99})
                                   .check();

} // namespace
