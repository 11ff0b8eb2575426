#include "variants/tree/TreeNodePrivate.h"

#include "host/variants/tree/TreeNodeRow.h"

namespace DisplayAPI {

struct TreeNodeSide::Impl {
    Impl(const TranslatedText& shownText, TreeNode* owner, bool wayBack)
        : row(shownText.shown(), owner), hasWayBack(wayBack)
    {
        if (shownText.isTranslated())
            translation = shownText;
        row.setWayBack(hasWayBack);
    }

    TranslatedText translation; ///< empty for a plain text, which the row has
    TreeNodeRow row;
    const bool hasWayBack; ///< of the panel
};

TreeNodeSide::TreeNodeSide(TreeNode* owner, const TranslatedText& text, Panel panel)
    : mImpl(std::make_unique<Impl>(text, owner, panel == Panel::SMALL))
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
    if (mImpl->translation.isTranslated())
        mImpl->row.DataSet(mImpl->translation.shown());
}

Peg_TreeListItem* TreeNodeSide::getTreeListItem()
{
    return &mImpl->row;
}

} // namespace DisplayAPI
