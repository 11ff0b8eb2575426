#include "variants/tree/ExpandingTreeListPrivate.h"

#include "DisplayAPI/ExpandingTreeList.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "host/variants/list/ListScreen.h"
#include "host/variants/tree/TreeCore.h"
#include "widgets/Peg_TreeListItem.h"

#include <algorithm>

namespace DisplayAPI {

struct ExpandingTreeListSide::Impl {
    Impl(ExpandingTreeListSide& side, ExpandingTreeList* facade, ListBoxCore::Back back, Panel panel)
        : tree(side, facade, panel, back, nullptr, [facade](const std::string& locale) {
              if (facade != nullptr)
                  facade->localeChanged(locale);
          })
    {
    }

    /// A row of the facade's. Its side may be deleted without the list's hearing of it.
    struct Row {
        explicit Row(KestrelListBoxItem* shown) : row(shown), item(dynamic_cast<Peg_TreeListItem*>(shown))
        {
            if (item != nullptr)
                life = item->life();
        }

        /// Null where it is not a tree's, or has gone.
        Peg_TreeListItem* treeItem() const { return life.expired() ? nullptr : item; }
        bool is(const KestrelListBoxItem* other) const { return row == other && treeItem() == item; }

        const KestrelListBoxItem* row; ///< null for what is not shown
        Peg_TreeListItem* item;
        std::weak_ptr<void> life;
    };

    /// The last row, and those above it: where the next one may belong.
    struct Above {
        Row row;
        int level;
    };

    Peg_TreeListItem* parentOf(int level);
    void append(KestrelListBoxItem* row, int level);
    void show(KestrelListBoxItem& shown, const Row& row, int level);
    void setReadonly(Peg_TreeListItem& item, bool on);
    void setAligned(bool on);

    TreeCore tree;
    Screen screen{tree};
    std::vector<Row> rows; ///< all, in the order of append()
    std::vector<Above> path;
    bool aligned = false;
};

/// The last row that stands less deep; null for those on top.
Peg_TreeListItem* ExpandingTreeListSide::Impl::parentOf(int level)
{
    while (!path.empty() && (path.back().level >= level || path.back().row.treeItem() == nullptr))
        path.pop_back();
    return path.empty() ? nullptr : path.back().row.treeItem();
}

void ExpandingTreeListSide::Impl::append(KestrelListBoxItem* row, int level)
{
    const Row& added = rows.emplace_back(row);
    if (row != nullptr)
        show(*row, added, level);
}

/// A row that is not a tree's stands on top, and nothing below it: what comes later stands behind it.
void ExpandingTreeListSide::Impl::show(KestrelListBoxItem& shown, const Row& row, int level)
{
    Peg_TreeListItem* const item = row.item;
    if (item == nullptr)
        path.clear();
    Peg_TreeListItem* const parent = item != nullptr ? parentOf(std::max(level, 0)) : nullptr;
    if (item != nullptr) {
        item->setAligned(aligned);
        path.push_back({row, std::max(level, 0)});
    }
    if (parent != nullptr)
        tree.change([&](KestrelListBox&) { parent->append(*item); });
    else
        tree.insert(&shown, tree.size());
}

void ExpandingTreeListSide::Impl::setAligned(bool on)
{
    aligned = on;
    for (const Row& row : rows)
        if (Peg_TreeListItem* const item = row.treeItem())
            item->setAligned(on);
    tree.changed();
}

void ExpandingTreeListSide::Impl::setReadonly(Peg_TreeListItem& item, bool on)
{
    if (item.isInactive() == on)
        return;
    item.setInactive(on);
    if (item.row() >= 0)
        tree.changed();
}

ExpandingTreeListSide::ExpandingTreeListSide(ExpandingTreeList* owner, bool backItem, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, backItem ? ListBoxCore::Back::KEY_AND_ROW : ListBoxCore::Back::KEY,
                                   panel))
{
}

ExpandingTreeListSide::~ExpandingTreeListSide() = default;

ExpandingTreeListPrivate::ExpandingTreeListPrivate(ExpandingTreeList* owner)
    : ExpandingTreeListSide(owner, false, Panel::FULL)
{
}

ExpandingTreeListPrivateWP1::ExpandingTreeListPrivateWP1(ExpandingTreeList* owner, bool backItem)
    : ExpandingTreeListSide(owner, backItem, Panel::SMALL)
{
}

ListScreenSide::Screen& ExpandingTreeListSide::screen()
{
    return mImpl->screen;
}

void ExpandingTreeListSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void ExpandingTreeListSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void ExpandingTreeListSide::append(ListItemPrivateIfc* row, int level)
{
    mImpl->append(row != nullptr ? row->getKestrelListItem() : nullptr, level);
}

void ExpandingTreeListSide::clear()
{
    mImpl->rows.clear();
    mImpl->path.clear();
    mImpl->tree.clear();
}

int ExpandingTreeListSide::getSelectedIndex()
{
    const KestrelListBox* const box = mImpl->tree.box();
    const KestrelListBoxItem* const current = box != nullptr ? box->itemAt(box->currentRow()) : nullptr;
    if (current == nullptr)
        return -1;
    const auto found = std::ranges::find_if(mImpl->rows, [=](const Impl::Row& row) { return row.is(current); });
    return found != mImpl->rows.end() ? static_cast<int>(found - mImpl->rows.begin()) : -1;
}

void ExpandingTreeListSide::setTitle(const std::string& title)
{
    mImpl->tree.setTitle(TranslatedText(title));
}

void ExpandingTreeListSide::setTitle(TranslationInfo* title)
{
    mImpl->tree.setTitle(TranslatedText(title));
}

void ExpandingTreeListSide::align()
{
    mImpl->setAligned(true);
}

void ExpandingTreeListSide::unalign()
{
    mImpl->setAligned(false);
}

void ExpandingTreeListSide::setReadonly(int index, bool on)
{
    const auto place = static_cast<std::size_t>(index);
    Peg_TreeListItem* const item = place < mImpl->rows.size() ? mImpl->rows[place].treeItem() : nullptr;
    if (item != nullptr)
        mImpl->setReadonly(*item, on);
}

void ExpandingTreeListSide::setRightArrowEqualsOK(bool on)
{
    mImpl->tree.setRightEqualsOK(on);
}

} // namespace DisplayAPI
