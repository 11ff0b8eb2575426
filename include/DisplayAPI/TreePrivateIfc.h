#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/Tree.h"

#include <string>

namespace DisplayAPI {

class TreeNodePrivateIfc;

/// The GUI-thread side of a tree. GUI thread only. Deleted by Displayable::deletePrivateSide() alone, before its nodes
/// are. Nodes, listeners and translations are not owned; texts are UTF-8.
class DISPLAYAPI_EXPORT TreePrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~TreePrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    /// On top, behind those that are there.
    virtual void addNode(TreeNodePrivateIfc* node) = 0;

    /// The current node's facade; null where there is none.
    virtual TreeNode* getSelected() = 0;

    /// `all`: with everything below it.
    virtual void expandNode(TreeNodePrivateIfc* node, bool all) = 0;
    virtual void collapseNode(TreeNodePrivateIfc* node) = 0;
    virtual void collapseTreeToLevel(int level) = 0;

    virtual void setTreeName(std::string name) = 0;
    virtual void setTreeName(TranslationInfo* name) = 0;
    virtual void setTreeIcon(Tree::TreeIcon icon) = 0;
};

} // namespace DisplayAPI
