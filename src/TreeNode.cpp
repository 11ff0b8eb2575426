#include "DisplayAPI/TreeNode.h"

#include "Operations.h"
#include "TreeNodes.h"
#include "Variant.h"
#include "variants/tree/TreeNodePrivate.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CREATE_TRANSLATED = 1,
    ADD_NODE = 2,
    ADD_TRANSLATED_NODE = 3,
    SET_INACTIVE = 4,
    CLEANUP = 5,
    SET_PROTECTED = 6,
    GET_PROTECTED = 7,
    REMOVE_BACK = 8,
    GET_CHILD_NODES = 9,
    GET_TEXT = 10
};

using Ifc = TreeNodePrivateIfc;

} // namespace

struct TreeNode::Ops
    : Operations<Posts<CREATE, &TreeNode::create>, Posts<CREATE_TRANSLATED, &TreeNode::createTranslated>,
                 Waits<ADD_NODE, &TreeNode::makeNode>, Waits<ADD_TRANSLATED_NODE, &TreeNode::makeTranslatedNode>,
                 Posts<SET_INACTIVE, &Ifc::setInactive>, Waits<CLEANUP, &TreeNode::destroy>,
                 Posts<SET_PROTECTED, &Ifc::setProtected>, Waits<GET_PROTECTED, &Ifc::getProtected>,
                 Posts<REMOVE_BACK, &Ifc::removeBack>, Waits<GET_CHILD_NODES, &TreeNode::childNodes>,
                 Waits<GET_TEXT, &TreeNode::shownText>> {};

TreeNode::TreeNode(const std::string& text, int id) : mText(text), mId(id)
{
    Ops::call<CREATE>(*this, mImplementation, text);
}

TreeNode::TreeNode(TranslationInfo* text, int id) : mText(text), mId(id)
{
    Ops::call<CREATE_TRANSLATED>(*this, mImplementation, text);
}

TreeNode::~TreeNode()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

/// Once: a second side would stand in no tree.
void TreeNode::create(const std::string& text)
{
    if (mImplementation != nullptr)
        return;
    name = "TreeNode";
    if (isFullPanelHardware())
        mImplementation = new TreeNodePrivate(this, text);
    else
        mImplementation = new TreeNodePrivateWP1(this, text);
}

void TreeNode::createTranslated(TranslationInfo* text)
{
    if (mImplementation != nullptr)
        return;
    name = "TreeNode";
    if (isFullPanelHardware())
        mImplementation = new TreeNodePrivate(this, text);
    else
        mImplementation = new TreeNodePrivateWP1(this, text);
}

/// Whoever hears that the row has gone may delete the tree, and this node with it.
void TreeNode::destroy()
{
    std::vector<TreeNode*> below = std::exchange(mChildNodes, {});
    delete std::exchange(mImplementation, nullptr);
    deleteAll(below);
}

/// Last ones first, and what stands below a node before it: however deep a tree is, no node deletes another one.
void TreeNode::deleteAll(std::vector<TreeNode*>& nodes)
{
    std::vector<TreeNode*> all = std::exchange(nodes, {});
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::vector<TreeNode*> below = std::exchange(all[i]->mChildNodes, {});
        all.insert(all.end(), below.begin(), below.end());
    }
    std::for_each(all.rbegin(), all.rend(), [](TreeNode* node) { delete node; });
}

void TreeNode::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

TreeNodePrivateIfc* TreeNode::getPrivateImpl()
{
    return mImplementation;
}

void TreeNode::cleanup()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

TreeNode* TreeNode::makeNode(const std::string& text, int id)
{
    return growNode(mChildNodes, mImplementation, text, id);
}

TreeNode* TreeNode::makeTranslatedNode(TranslationInfo* text, int id)
{
    return growNode(mChildNodes, mImplementation, text, id);
}

TreeNode* TreeNode::addNode(const std::string& text, int id)
{
    return Ops::call<ADD_NODE>(*this, mImplementation, text, id);
}

TreeNode* TreeNode::addNode(TranslationInfo* text, int id)
{
    return Ops::call<ADD_TRANSLATED_NODE>(*this, mImplementation, text, id);
}

std::vector<TreeNode*> TreeNode::childNodes() const
{
    return mChildNodes;
}

std::vector<TreeNode*> TreeNode::getChildNodes() const
{
    return Ops::call<GET_CHILD_NODES>(*this, mImplementation);
}

std::string TreeNode::shownText() const
{
    return mText.text();
}

/// Translators are asked on the GUI thread alone.
std::string TreeNode::getText() const
{
    return mText.isTranslated() ? Ops::call<GET_TEXT>(*this, mImplementation) : mText.text();
}

void TreeNode::setInactive(bool on)
{
    Ops::call<SET_INACTIVE>(*this, mImplementation, on);
}

void TreeNode::setProtected(bool on)
{
    Ops::call<SET_PROTECTED>(*this, mImplementation, on);
}

bool TreeNode::getProtected()
{
    return Ops::call<GET_PROTECTED>(*this, mImplementation);
}

void TreeNode::removeBack(bool on)
{
    Ops::call<REMOVE_BACK>(*this, mImplementation, on);
}

void TreeNode::insertNode(TreeNode*, int) {}

void TreeNode::removeNode(int) {}

} // namespace DisplayAPI
