#include "variants/tree/TreePrivate.h"

#include "DisplayAPI/TreeNode.h"
#include "doubles/Answers.h"
#include "doubles/ListScreen.h"

namespace DisplayAPI {

/// The recording tree.
struct TreeSide::Impl {
    Screen screen;
};

TreeSide::TreeSide(Tree* owner, Panel panel) : mImpl(new Impl{{*this, "TreePrivate", panel, owner}}) {}

TreeSide::~TreeSide() = default;

TreePrivate::TreePrivate(Tree* owner) : TreeSide(owner, Panel::FULL) {}

TreePrivateWP1::TreePrivateWP1(Tree* owner) : TreeSide(owner, Panel::SMALL) {}

ListScreenSide::Screen& TreeSide::screen()
{
    return mImpl->screen;
}

void TreeSide::addCommandListener(CommandListener* listener)
{
    screen().note("addCommandListener", listener);
}

void TreeSide::removeCommandListener(CommandListener* listener)
{
    screen().note("removeCommandListener", listener);
}

void TreeSide::addNode(TreeNodePrivateIfc* node)
{
    screen().note("addNode", node);
}

TreeNode* TreeSide::getSelected()
{
    screen().note("getSelected");
    return doubles::Answers::instance().node;
}

void TreeSide::expandNode(TreeNodePrivateIfc* node, bool all)
{
    screen().note("expandNode", node, all);
}

void TreeSide::collapseNode(TreeNodePrivateIfc* node)
{
    screen().note("collapseNode", node);
}

void TreeSide::collapseTreeToLevel(int level)
{
    screen().note("collapseTreeToLevel", level);
}

void TreeSide::setTreeName(std::string name)
{
    screen().note("setTreeName", name);
}

void TreeSide::setTreeName(TranslationInfo* name)
{
    screen().note("setTreeName", name);
}

void TreeSide::setTreeIcon(Tree::TreeIcon icon)
{
    screen().note("setTreeIcon", static_cast<int>(icon));
}

} // namespace DisplayAPI
