#include "DisplayAPI/Tree.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/TreeNode.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::Tree;
using DisplayAPI::TreeNode;

namespace {

constexpr int PASSWORD = 1;

} // namespace

/// Settings in a tree. What the administrator may see is protected: OK asks, and the application opens it. OK on a
/// setting has its name above the tree.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Tree tree;
    const DisplayAPI::kit::Subscription choice(tree, [&](Command* command) {
        TreeNode* const node = tree.getSelected();
        if (command != List::SELECT_COMMAND() || node == nullptr)
            return;
        if (node->getProtected())
            tree.expandNode(node, true);
        else
            tree.setTreeName(node->getText());
    });
    phone.run(tree, [&] {
        tree.setTreeName("Settings");
        tree.setTreeIcon(Tree::SETTINGS);
        TreeNode* const network = tree.addNode("Network", 0);
        TreeNode* const address = network->addNode("Address", 0);
        address->addNode("192.168.0.17", 0);
        address->addNode("2001:db8::17", 0);
        network->addNode("Certificates", 0)->setInactive(true);
        TreeNode* const administrator = tree.addNode("Administrator", PASSWORD);
        administrator->setProtected(true);
        administrator->addNode("Restart", 0);
    });
}
