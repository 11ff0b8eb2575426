#include "variants/tree/TreeNodePrivate.h"

#include "host/variants/tree/TreeNodeRow.h"

namespace DisplayAPI {

struct TreeNodeSide::Impl {
    Impl(TranslatedText shownText, TreeNode* owner, bool wayBack)
        : text(std::move(shownText)), row(text.shown(), owner), hasWayBack(wayBack)
    {
        row.setWayBack(hasWayBack);
    }

    TranslatedText text;
    TreeNodeRow row;
    const bool hasWayBack; ///< of the panel
};

TreeNodeSide::TreeNodeSide(TreeNode* owner, TranslatedText text, Panel panel)
    : mImpl(std::make_unique<Impl>(std::move(text), owner, panel == Panel::SMALL))
{
}

TreeNodeSide::~TreeNodeSide() = default;

TreeNodePrivate::TreeNodePrivate(TreeNode* owner, const std::string& text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::FULL)
{
}

TreeNodePrivate::TreeNodePrivate(TreeNode* owner, TranslationInfo* text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::FULL)
{
}

TreeNodePrivateWP1::TreeNodePrivateWP1(TreeNode* owner, const std::string& text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::SMALL)
{
}

TreeNodePrivateWP1::TreeNodePrivateWP1(TreeNode* owner, TranslationInfo* text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::SMALL)
{
}

void TreeNodeSide::addNode(TreeNodePrivateIfc* node)
{
    if (node != nullptr)
        mImpl->row.append(*node->getTreeListItem());
}

void TreeNodeSide::setInactive(bool on)
{
    mImpl->row.setInactive(on);
}

void TreeNodeSide::setProtected(bool on)
{
    mImpl->row.setProtected(on);
}

bool TreeNodeSide::getProtected()
{
    return mImpl->row.isProtected();
}

void TreeNodeSide::removeBack(bool on)
{
    mImpl->row.setWayBack(mImpl->hasWayBack && !on);
}

void TreeNodeSide::localeChanged(std::string)
{
    if (mImpl->text.isTranslated())
        mImpl->row.DataSet(mImpl->text.shown());
}

Peg_TreeListItem* TreeNodeSide::getTreeListItem()
{
    return &mImpl->row;
}

} // namespace DisplayAPI
