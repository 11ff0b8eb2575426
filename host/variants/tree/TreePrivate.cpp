#include "variants/tree/TreePrivate.h"

#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "host/variants/list/ListScreen.h"
#include "host/variants/tree/TreeCore.h"
#include "host/variants/tree/TreeNodeRow.h"
#include "host/widgets/list/ListLayout.h"

#include <array>

namespace DisplayAPI {

namespace {

using Picture = KestrelListBox::Picture;

/// From the first icon on.
constexpr std::array PICTURES{Picture{host::icons::WRENCH}, Picture{host::icons::PERSON},
                              Picture{host::icons::LETTER}, Picture{host::icons::HANDSET},
                              Picture{host::icons::HOUSE},  Picture{host::icons::PICTURE}};

const Picture* pictureOf(Tree::TreeIcon icon)
{
    const auto place = static_cast<std::size_t>(icon) - Tree::SETTINGS;
    return place < PICTURES.size() ? &PICTURES.at(place) : nullptr;
}

} // namespace

struct TreeSide::Impl {
    Impl(TreeSide& side, Tree* facade, Panel panel)
        : tree(side, facade, panel, ListBoxCore::Back::KEY, &Tree::HIGHLIGHT_CHANGED_COMMAND,
               [facade](const std::string& locale) {
                   if (facade != nullptr)
                       facade->localeChanged(locale);
               })
    {
    }

    TreeCore tree;
    Screen screen{tree};
};

TreeSide::TreeSide(Tree* owner, Panel panel) : mImpl(std::make_unique<Impl>(*this, owner, panel)) {}

TreeSide::~TreeSide() = default;

TreePrivate::TreePrivate(Tree* owner) : TreeSide(owner, Panel::FULL) {}

TreePrivateWP1::TreePrivateWP1(Tree* owner) : TreeSide(owner, Panel::SMALL) {}

ListScreenSide::Screen& TreeSide::screen()
{
    return mImpl->screen;
}

void TreeSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void TreeSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void TreeSide::addNode(TreeNodePrivateIfc* node)
{
    if (node != nullptr)
        mImpl->tree.insert(node->getTreeListItem(), mImpl->tree.size());
}

TreeNode* TreeSide::getSelected()
{
    const auto* const row = dynamic_cast<const TreeNodeRow*>(mImpl->tree.current());
    return row != nullptr ? row->node : nullptr;
}

void TreeSide::expandNode(TreeNodePrivateIfc* node, bool all)
{
    mImpl->tree.open(*node->getTreeListItem(), all);
}

void TreeSide::collapseNode(TreeNodePrivateIfc* node)
{
    mImpl->tree.close(*node->getTreeListItem());
}

void TreeSide::collapseTreeToLevel(int level)
{
    mImpl->tree.closeFrom(level);
}

void TreeSide::setTreeName(std::string name)
{
    mImpl->tree.setTitle(TranslatedText(std::move(name)));
}

void TreeSide::setTreeName(TranslationInfo* name)
{
    mImpl->tree.setTitle(TranslatedText(name));
}

void TreeSide::setTreeIcon(Tree::TreeIcon icon)
{
    mImpl->tree.change([=](KestrelListBox& box) { box.setTitlePicture(pictureOf(icon)); });
}

} // namespace DisplayAPI
