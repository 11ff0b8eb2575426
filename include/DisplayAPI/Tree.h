#pragma once

#include "DisplayAPI/Displayable.h"

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TreeNode;
class TreePrivateIfc;

/// A screen of nodes that open and close. Right opens a node, and goes to the first below one that is open; left closes
/// it, and goes to the one above where there is nothing to close. OK opens and closes what has nodes below it.
///
/// Threads: safe from any thread. Off the GUI thread addNode(), getSelected(), getTreeNodes(), findItemAt(), those of
/// the listeners, cleanup() and the destructor wait; everything else posts and returns at once. Calls from one thread
/// keep their order.
/// Ownership: a tree owns its GUI-thread side and the nodes that it makes. Listeners and translations are not owned. A
/// translation has to live while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT Tree : public Displayable {
public:
    /// What stands before the tree's name; any value travels through, and an unknown one is none.
    enum TreeIcon : int { NO_ICON = 0, SETTINGS = 1, PERSONS = 2, MESSAGES = 3, CALLS = 4, HOME = 5, PICTURES = 6 };

    Tree();
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;
    ~Tree() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Takes it off its display, and deletes its GUI-thread side and its nodes; the destructor sees to it.
    void cleanup();

    /// Makes a node on top, behind those that are there, and returns it; null where the request is lost. Texts are
    /// UTF-8.
    TreeNode* addNode(const std::string& text, int id);
    TreeNode* addNode(TranslationInfo* text, int id);

    /// Those on top, in the order of addNode().
    std::vector<TreeNode*> getTreeNodes();

    /// The current node; null where there is none, or where the row that leads back is current.
    TreeNode* getSelected();

    /// The node with that number where all are counted from 0, a node before those below it, whether or not they are
    /// shown; null where there is none.
    TreeNode* findItemAt(int index);

    /// Opens the node, and those above it so that it is seen; `all` opens everything below it as well. Null is ignored.
    void expandNode(TreeNode* node, bool all);

    /// Null is ignored.
    void collapseNode(TreeNode* node);

    /// Closes all nodes from that level on; those on top are level 0, as are negative numbers.
    void collapseTreeToLevel(int level);

    /// Stands above the nodes; an empty one takes no room.
    void setTreeName(std::string name);
    void setTreeName(TranslationInfo* name);
    void setTreeIcon(TreeIcon icon);

    /// Adds a listener once. It hears HIGHLIGHT_CHANGED_COMMAND() when the user has gone to another row, and of the
    /// commands of List SELECT_COMMAND() when OK is pressed on a node that it neither opens nor closes, and
    /// BACK_COMMAND() when left leads out of the tree. Null is ignored. Not owned: it has to live until
    /// removeCommandListener() has returned, or outlive the tree.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Hands the locale to every node, and tells the display then. Call it on the GUI thread.
    void localeChanged(std::string locale);

    /// One object per process, recognised by its address.
    static Command* HIGHLIGHT_CHANGED_COMMAND();

    /// These do nothing.
    void setUsedWithTab(bool used, Displayable* tab);
    void setWrapAround(bool on);
    void restoreFocusAndShowHighlight();
    void removeHighLight();
    void insertChildNode(TreeNode* parent, TreeNode* node, int index);
    void removeChildNode(TreeNode* parent, int index);

private:
    struct Ops;

    void create();
    void destroy();
    TreeNode* makeNode(const std::string& text, int id);
    TreeNode* makeTranslatedNode(TranslationInfo* text, int id);
    std::vector<TreeNode*> treeNodes() const;
    TreeNode* find(int index) const;
    template <typename Visit>
    void forEachNode(Visit visit) const;

    TreePrivateIfc* mImplementation = nullptr;
    std::vector<TreeNode*> mTreeNodes;
};

} // namespace DisplayAPI
