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

    template <typename Change>
    void changeRows(Change apply);

    TranslatedText translation; ///< empty for a plain text, which the row has
    TreeNodeRow row;
    const bool hasWayBack; ///< of the panel
};

/// Rows below this one come or go, or with the first one its mark. Whoever hears of that may delete the node.
template <typename Change>
void TreeNodeSide::Impl::changeRows(Change apply)
{
    KestrelListBox* const box = row.list();
    const int rows = box != nullptr ? box->numItems() : 0;
    const bool hadMark = !row.children().empty();
    apply();
    if (box != nullptr && box->numItems() != rows)
        box->tellRowsChanged();
    else if (hadMark == row.children().empty())
        row.tellChanged();
}

TreeNodeSide::TreeNodeSide(TreeNode* owner, const TranslatedText& text, Panel panel)
    : mImpl(std::make_unique<Impl>(text, owner, panel == Panel::SMALL))
{
}

/// Tells whoever hears the tree when all of it has gone.
TreeNodeSide::~TreeNodeSide()
{
    auto* const above = dynamic_cast<TreeNodeRow*>(mImpl->row.parent());
    KestrelListBox* const box = mImpl->row.list();
    mImpl.reset();
    if (box != nullptr)
        box->tellRowsChanged();
    else if (above != nullptr && above->children().empty())
        above->tellChanged(); // it has lost its mark
}

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
    if (node == nullptr)
        return;
    mImpl->changeRows([&] { mImpl->row.append(*node->getTreeListItem()); });
}

void TreeNodeSide::setInactive(bool on)
{
    if (mImpl->row.isInactive() == on)
        return;
    mImpl->row.setInactive(on);
    mImpl->row.tellChanged();
}

void TreeNodeSide::setProtected(bool on)
{
    if (mImpl->row.isProtected() == on)
        return;
    mImpl->row.setProtected(on);
    mImpl->row.tellChanged();
}

bool TreeNodeSide::getProtected()
{
    return mImpl->row.isProtected();
}

void TreeNodeSide::removeBack(bool on)
{
    mImpl->changeRows([&] { mImpl->row.setWayBack(mImpl->hasWayBack && !on); });
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
