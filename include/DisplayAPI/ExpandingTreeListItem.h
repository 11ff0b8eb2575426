#pragma once

#include "DisplayAPI/ListItem.h"

namespace DisplayAPI {

/// A row of an ExpandingTreeList: a text, and how far it stands below the top.
///
/// Threads: safe from any thread. Constructors off the GUI thread post and return at once; the destructor and getText()
/// wait.
/// Ownership: as for ListItem. A translation is not owned and has to outlive the row; null is an empty text.
class DISPLAYAPI_EXPORT ExpandingTreeListItem : public ListItem {
public:
    /// `level`: 0 is on top, and so is less. The row belongs to the last one before it that stands less deep.
    /// UTF-8.
    explicit ExpandingTreeListItem(std::string text, int level = 0);
    explicit ExpandingTreeListItem(TranslationInfo* text, int level = 0);

    /// Adopts a GUI-thread side, which the row deletes. Where its toolkit row is not a tree's, it
    /// stands on top, and so does what follows it, however deep, until another row takes that up.
    explicit ExpandingTreeListItem(ListItemPrivateIfc* implementation, int level = 0);

    ExpandingTreeListItem(const ExpandingTreeListItem&) = delete;
    ExpandingTreeListItem& operator=(const ExpandingTreeListItem&) = delete;
    ~ExpandingTreeListItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// Here.
    int getLevel() const { return mLevel; }

private:
    struct Ops;

    void create(std::string text);
    void createTranslated(TranslationInfo* text);

    const int mLevel;
};

} // namespace DisplayAPI
