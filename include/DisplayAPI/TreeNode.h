#pragma once

#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/Widget.h"

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class TreeNodePrivateIfc;

/// A node of a Tree: a text, a number of the application's, and nodes below it.
///
/// Threads: safe from any thread. Off the GUI thread addNode(), getProtected(), getChildNodes(), getText() of a
/// translation, cleanup() and the destructor wait; getId() and getText() of a plain text run here; everything else
/// posts and returns at once.
/// Ownership: a node owns the nodes that it makes, and they go with it; one that addNode() of a tree or of a node has
/// returned is never deleted by the application. A translation is not owned and has to outlive the node; null is an
/// empty text.
class DISPLAYAPI_EXPORT TreeNode : public Widget {
public:
    // Texts are UTF-8. A node that is made in this way stands in no tree.

    TreeNode(const std::string& text, int id);
    TreeNode(TranslationInfo* text, int id);
    TreeNode(const TreeNode&) = delete;
    TreeNode& operator=(const TreeNode&) = delete;
    ~TreeNode() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side; null until it has been made, and after cleanup(). GUI thread only.
    TreeNodePrivateIfc* getPrivateImpl();

    /// Takes the node off the screen and deletes its GUI-thread side and the nodes below it; the destructor sees to it.
    void cleanup();

    /// Makes a node below this one, behind those that are there, and returns it; null where the request is lost.
    TreeNode* addNode(const std::string& text, int id);
    TreeNode* addNode(TranslationInfo* text, int id);

    /// In the order of addNode().
    std::vector<TreeNode*> getChildNodes() const;

    int getId() const { return mId; }

    /// In the language of the moment.
    std::string getText() const;

    /// An inactive node is grey: the user neither opens nor chooses it.
    void setInactive(bool on);

    /// A protected node has a padlock, and no key opens it: OK raises the tree's command, and the application opens the
    /// node where it is content with the user.
    void setProtected(bool on);

    /// False where nobody answers.
    bool getProtected();

    /// Whether the row that leads back from its nodes is left out. The 208 x 42 panel has one; on the others left
    /// does.
    void removeBack(bool on);

    /// These do nothing.
    void insertNode(TreeNode* node, int index);
    void removeNode(int index);

private:
    friend class Tree;
    struct Ops;

    void create(const std::string& text);
    void createTranslated(TranslationInfo* text);
    void destroy();
    TreeNode* makeNode(const std::string& text, int id);
    TreeNode* makeTranslatedNode(TranslationInfo* text, int id);
    std::vector<TreeNode*> childNodes() const;
    std::string shownText() const;

    /// With all that stands below them. GUI thread only.
    static void deleteAll(std::vector<TreeNode*>& nodes);

    TreeNodePrivateIfc* mImplementation = nullptr;
    const TranslatedText mText;
    const int mId;
    std::vector<TreeNode*> mChildNodes;
};

} // namespace DisplayAPI
