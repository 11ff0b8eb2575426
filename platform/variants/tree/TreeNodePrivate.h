#pragma once

#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/TreeNodePrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

class TreeNode;

/// The GUI-thread side of a node, whatever the panel.
class DISPLAYAPI_EXPORT TreeNodeSide : public TreeNodePrivateIfc {
public:
    ~TreeNodeSide() override;

    void addNode(TreeNodePrivateIfc* node) override;
    void setInactive(bool on) override;
    void setProtected(bool on) override;
    bool getProtected() override;
    void removeBack(bool on) override;
    void localeChanged(std::string locale) override;
    Peg_TreeListItem* getTreeListItem() override;

protected:
    TreeNodeSide(TreeNode* owner, const TranslatedText& text, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// A node of the 240 x 128 panel and its narrow form: left leads back from those below it.
class DISPLAYAPI_EXPORT TreeNodePrivate : public TreeNodeSide {
public:
    /// `owner` is the facade, not owned. The text is UTF-8; a translation is not owned, null is an empty text.
    TreeNodePrivate(TreeNode* owner, const std::string& text);
    TreeNodePrivate(TreeNode* owner, TranslationInfo* text);
};

/// A node of the 208 x 42 panel: a row of its own, behind those below it, leads back as well.
class DISPLAYAPI_EXPORT TreeNodePrivateWP1 : public TreeNodeSide {
public:
    /// As for TreeNodePrivate.
    TreeNodePrivateWP1(TreeNode* owner, const std::string& text);
    TreeNodePrivateWP1(TreeNode* owner, TranslationInfo* text);
};

} // namespace DisplayAPI
