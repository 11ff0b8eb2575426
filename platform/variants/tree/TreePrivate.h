#pragma once

#include "DisplayAPI/TreePrivateIfc.h"
#include "variants/Panel.h"
#include "variants/list/ListScreenSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a tree, whatever the panel.
class DISPLAYAPI_EXPORT TreeSide : public ListScreenSide, public TreePrivateIfc {
public:
    ~TreeSide() override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void addNode(TreeNodePrivateIfc* node) override;
    TreeNode* getSelected() override;
    void expandNode(TreeNodePrivateIfc* node, bool all) override;
    void collapseNode(TreeNodePrivateIfc* node) override;
    void collapseTreeToLevel(int level) override;
    void setTreeName(std::string name) override;
    void setTreeName(TranslationInfo* name) override;
    void setTreeIcon(Tree::TreeIcon icon) override;

protected:
    TreeSide(Tree* owner, Panel panel);

private:
    Screen& screen() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The tree of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT TreePrivate : public TreeSide {
public:
    /// `owner` is the facade, not owned.
    explicit TreePrivate(Tree* owner);
};

/// The tree of the 208 x 42 panel.
class DISPLAYAPI_EXPORT TreePrivateWP1 : public TreeSide {
public:
    /// `owner` is the facade, not owned.
    explicit TreePrivateWP1(Tree* owner);
};

} // namespace DisplayAPI
