#pragma once

#include "DisplayAPI/ExpandingTreeListPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/list/ListScreenSide.h"

#include <memory>

namespace DisplayAPI {

class ExpandingTreeList;

/// The GUI-thread side of a tree list, whatever the panel.
class DISPLAYAPI_EXPORT ExpandingTreeListSide : public ListScreenSide, public ExpandingTreeListPrivateIfc {
public:
    ~ExpandingTreeListSide() override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void append(ListItemPrivateIfc* row, int level) override;
    void clear() override;
    int getSelectedIndex() override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void align() override;
    void unalign() override;
    void setReadonly(int index, bool on) override;
    void setRightArrowEqualsOK(bool on) override;

protected:
    ExpandingTreeListSide(ExpandingTreeList* owner, bool backItem, Panel panel);

private:
    Screen& screen() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The tree list of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ExpandingTreeListPrivate : public ExpandingTreeListSide {
public:
    /// `owner` is the facade, not owned.
    explicit ExpandingTreeListPrivate(ExpandingTreeList* owner);
};

/// The tree list of the 208 x 42 panel.
class DISPLAYAPI_EXPORT ExpandingTreeListPrivateWP1 : public ExpandingTreeListSide {
public:
    /// `owner` is the facade, not owned. `backItem`: the list ends with a row that leads out of it.
    ExpandingTreeListPrivateWP1(ExpandingTreeList* owner, bool backItem);
};

} // namespace DisplayAPI
