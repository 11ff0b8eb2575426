#include "DisplayAPI/Tree.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TreePrivateIfc.h"
#include "GuiThread.h"
#include "Operations.h"
#include "TellRowsChanged.h"
#include "TreeNodes.h"
#include "Variant.h"
#include "variants/tree/TreePrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CLEANUP = 1,
    ADD_NODE = 3,
    ADD_TRANSLATED_NODE = 4,
    GET_SELECTED = 5,
    EXPAND_NODE = 6,
    COLLAPSE_NODE = 7,
    COLLAPSE_TO_LEVEL = 8,
    SET_NAME = 9,
    SET_TRANSLATED_NAME = 10,
    SET_ICON = 11,
    GET_TREE_NODES = 12,
    FIND_ITEM = 13,
    ADD_COMMAND_LISTENER = 14,
    REMOVE_COMMAND_LISTENER = 15
};

using Ifc = TreePrivateIfc;

TreeNodePrivateIfc* sideOf(TreeNode* node)
{
    return node != nullptr ? node->getPrivateImpl() : nullptr;
}

void expand(Ifc& tree, TreeNode* node, bool all)
{
    if (TreeNodePrivateIfc* const side = sideOf(node))
        tree.expandNode(side, all);
}

void collapse(Ifc& tree, TreeNode* node)
{
    if (TreeNodePrivateIfc* const side = sideOf(node))
        tree.collapseNode(side);
}

} // namespace

struct Tree::Ops : Operations<Posts<CREATE, &Tree::create>, Waits<CLEANUP, &Tree::destroy>,
                              Waits<ADD_NODE, &Tree::makeNode>, Waits<ADD_TRANSLATED_NODE, &Tree::makeTranslatedNode>,
                              Waits<GET_SELECTED, &Ifc::getSelected>, Posts<EXPAND_NODE, &expand>,
                              Posts<COLLAPSE_NODE, &collapse>, Posts<COLLAPSE_TO_LEVEL, &Ifc::collapseTreeToLevel>,
                              Posts<SET_NAME, taking<std::string>(&Ifc::setTreeName)>,
                              Posts<SET_TRANSLATED_NAME, taking<TranslationInfo*>(&Ifc::setTreeName)>,
                              Posts<SET_ICON, &Ifc::setTreeIcon>, Waits<GET_TREE_NODES, &Tree::treeNodes>,
                              Waits<FIND_ITEM, &Tree::find>, Waits<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
                              Waits<REMOVE_COMMAND_LISTENER, &Ifc::removeCommandListener>> {};

Tree::Tree()
{
    Ops::call<CREATE>(*this, mImplementation);
}

Tree::~Tree()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

/// Once: a second side would have none of the nodes.
void Tree::create()
{
    if (mImplementation != nullptr)
        return;
    name = "Tree";
    if (isFullPanelHardware())
        mImplementation = new TreePrivate(this);
    else
        mImplementation = new TreePrivateWP1(this);
}

void Tree::destroy()
{
    std::vector<TreeNode*> nodes = std::exchange(mTreeNodes, {});
    deletePrivateSide(mImplementation);
    TreeNode::deleteAll(nodes);
}

void Tree::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* Tree::getPrivateImpl()
{
    return mImplementation;
}

void Tree::cleanup()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

TreeNode* Tree::makeNode(const std::string& text, int id)
{
    return growNode(mTreeNodes, mImplementation, text, id);
}

TreeNode* Tree::makeTranslatedNode(TranslationInfo* text, int id)
{
    return growNode(mTreeNodes, mImplementation, text, id);
}

TreeNode* Tree::addNode(const std::string& text, int id)
{
    return Ops::call<ADD_NODE>(*this, mImplementation, text, id);
}

TreeNode* Tree::addNode(TranslationInfo* text, int id)
{
    return Ops::call<ADD_TRANSLATED_NODE>(*this, mImplementation, text, id);
}

/// A node before those below it, until `visit` returns false. However deep a tree is, nothing calls itself.
template <typename Visit>
void Tree::forEachNode(Visit visit) const
{
    std::vector<std::pair<const std::vector<TreeNode*>*, std::size_t>> path{{&mTreeNodes, 0}};
    while (!path.empty()) {
        auto& [nodes, next] = path.back();
        if (next == nodes->size()) {
            path.pop_back();
            continue;
        }
        TreeNode* const node = (*nodes)[next++];
        if (!visit(*node))
            return;
        if (!node->mChildNodes.empty())
            path.emplace_back(&node->mChildNodes, 0);
    }
}

std::vector<TreeNode*> Tree::treeNodes() const
{
    return mTreeNodes;
}

TreeNode* Tree::find(int index) const
{
    TreeNode* found = nullptr;
    forEachNode([&, left = index](TreeNode& node) mutable {
        if (left-- == 0)
            found = &node;
        return found == nullptr;
    });
    return found;
}

std::vector<TreeNode*> Tree::getTreeNodes()
{
    return Ops::call<GET_TREE_NODES>(*this, mImplementation);
}

TreeNode* Tree::findItemAt(int index)
{
    return Ops::call<FIND_ITEM>(*this, mImplementation, index);
}

void Tree::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Tree::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

TreeNode* Tree::getSelected()
{
    return Ops::call<GET_SELECTED>(*this, mImplementation);
}

void Tree::expandNode(TreeNode* node, bool all)
{
    Ops::call<EXPAND_NODE>(*this, mImplementation, node, all);
}

void Tree::collapseNode(TreeNode* node)
{
    Ops::call<COLLAPSE_NODE>(*this, mImplementation, node);
}

void Tree::collapseTreeToLevel(int level)
{
    Ops::call<COLLAPSE_TO_LEVEL>(*this, mImplementation, level);
}

void Tree::setTreeName(std::string treeName)
{
    Ops::call<SET_NAME>(*this, mImplementation, std::move(treeName));
}

void Tree::setTreeName(TranslationInfo* treeName)
{
    Ops::call<SET_TRANSLATED_NAME>(*this, mImplementation, treeName);
}

void Tree::setTreeIcon(TreeIcon icon)
{
    Ops::call<SET_ICON>(*this, mImplementation, icon);
}

void Tree::localeChanged(std::string locale)
{
    onlyOnGuiThread("Tree::localeChanged()");
    forEachNode([&](TreeNode& node) {
        if (TreeNodePrivateIfc* const side = node.getPrivateImpl())
            side->localeChanged(locale);
        return true;
    });
    tellRowsChanged(mImplementation);
}

Command* Tree::HIGHLIGHT_CHANGED_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

void Tree::setUsedWithTab(bool, Displayable*) {}

void Tree::setWrapAround(bool) {}

void Tree::restoreFocusAndShowHighlight() {}

void Tree::removeHighLight() {}

void Tree::insertChildNode(TreeNode*, TreeNode*, int) {}

void Tree::removeChildNode(TreeNode*, int) {}

} // namespace DisplayAPI
