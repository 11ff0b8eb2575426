#pragma once

#include "DisplayAPI/TreeNode.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"

#include <vector>

namespace DisplayAPI {

/// Makes a node, has `side`, which may be null, show it, and keeps it in `nodes`. GUI thread only.
template <typename Side, typename Text>
TreeNode* growNode(std::vector<TreeNode*>& nodes, Side* side, const Text& text, int id)
{
    auto* const node = new TreeNode(text, id);
    if (side != nullptr)
        side->addNode(node->getPrivateImpl());
    nodes.push_back(node);
    return node;
}

} // namespace DisplayAPI
