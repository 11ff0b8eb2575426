#pragma once

#include "widgets/Peg_TreeListItem.h"

#include <utility>

namespace DisplayAPI {

class TreeNode;

/// A node's row, which knows whose it is.
struct TreeNodeRow : Peg_TreeListItem {
    TreeNodeRow(PegString text, TreeNode* facade) : Peg_TreeListItem(std::move(text)), node(facade) {}

    using KestrelListBoxItem::list;
    using KestrelListBoxItem::tellChanged;

    TreeNode* const node; ///< not owned
};

} // namespace DisplayAPI
