#pragma once

#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"

#include <vector>

namespace DisplayAPI {

/// Makes a node, keeps it in `nodes`, and has `side`, which may be null, show it. Whoever hears of that finds it there,
/// and may delete all of it. GUI thread only.
template <typename Side, typename Text>
TreeNode* growNode(std::vector<TreeNode*>& nodes, Side* side, const Text& text, int id)
{
    auto* const node = new TreeNode(text, id);
    nodes.push_back(node);
    if (side != nullptr)
        side->addNode(node->getPrivateImpl());
    return node;
}

} // namespace DisplayAPI
