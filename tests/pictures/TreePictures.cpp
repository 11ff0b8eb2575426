#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "DisplayAPI/TreePrivateIfc.h"
#include "pictures/StatusScreens.h"
#include "variants/tree/TreePrivate.h"
#include "widgets/Peg_TreeListItem.h"

namespace {

using DisplayAPI::Tree;
using DisplayAPI::TreeNode;

/// Trees as a display shows them.
class TreePictures : public StatusScreens {
protected:
    ~TreePictures() override
    {
        mTree.getPrivateImpl()->gainOwnership();
        gpPresent->Remove(mTree.getPrivateImpl()->getWidget());
    }

    Tree& showTree()
    {
        PegThing* const box = mTree.getPrivateImpl()->getWidget();
        box->Resize({0, 0, static_cast<std::int16_t>(host::Lcd::current()->width() - 1), box->Area().bottom});
        mTree.getPrivateImpl()->releaseOwnership();
        gpPresent->Add(box);
        return mTree;
    }

    /// Paints after each, so that what is seen has been reached by partial repaints.
    void pressInTree(std::initializer_list<PegKey> keys)
    {
        for (const PegKey key : keys) {
            host::Lcd::current()->paint();
            mTree.getPrivateImpl()->getWidget()->Message({.wType = PM_KEY, .iData = key});
        }
    }

    Tree mTree;
};

TEST_P(TreePictures, OpenClosedInactiveAndProtectedNodes)
{
    Tree& tree = showTree();
    tree.setTreeName("Settings");
    tree.setTreeIcon(Tree::SETTINGS);
    TreeNode* const network = tree.addNode("Network", 0);
    TreeNode* const address = network->addNode("Address", 0);
    address->addNode("192.168.0.17", 0);
    network->addNode("Certificates", 0)->setInactive(true);
    TreeNode* const administrator = tree.addNode("Administrator", 0);
    administrator->addNode("Password", 0);
    administrator->setProtected(true);
    expectScreen("tree-closed");
    pressInTree({PK_RIGHT, PK_RIGHT, PK_RIGHT, PK_RIGHT});
    expectScreen("tree-open");
    pressInTree({PK_DOWN, PK_DOWN});
    expectScreen("tree-inactive");
}

TEST_P(TreePictures, DeepNodesKeepRoomForTheirText)
{
    Tree& tree = showTree();
    TreeNode* node = tree.addNode("Level 0", 0);
    for (int level = 1; level < 20; ++level)
        node = node->addNode("Level " + std::to_string(level), 0);
    tree.expandNode(tree.findItemAt(0), true);
    pressInTree({PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN,
                 PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN});
    expectScreen("tree-deep");
}

TEST_P(TreePictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    Tree& tree = showTree();
    tree.setTreeName("الإعدادات");
    tree.setTreeIcon(Tree::SETTINGS);
    TreeNode* const network = tree.addNode("الشبكة", 0);
    network->addNode("العنوان", 0)->setProtected(true);
    tree.expandNode(network, false);
    expectScreen("tree-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, TreePictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
