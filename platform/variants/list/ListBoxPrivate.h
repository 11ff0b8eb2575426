#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

class List;

/// The GUI-thread side of a list, whatever the panel.
class DISPLAYAPI_EXPORT ListBoxSide : public DisplayablePrivate, public ListBoxPrivateIfc {
public:
    ~ListBoxSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void join(DisplayablePrivate* other) override;
    void disjoin() override;
    bool hasCaption() override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    int size() override;
    void append(ListItemPrivateIfc* row) override;
    void clear() override;
    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;
    void setSelected(ListItemPrivateIfc* row) override;
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void removeAt(int index, ListItemPrivateIfc* row) override;
    void remove(ListItemPrivateIfc* row) override;
    void setTicker(TickerPrivateIfc* ticker) override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, const std::string& text) override;
    Displayable* getParent() const override;
    void hide() override;
    void showDiallerOnInitialKeyEvent(bool on) override;
    void setDialler(PopupDialer* dialler) override;
    void dismissDialler() override;
    void setSelectionHighlight(bool on) override;

protected:
    ListBoxSide(List* owner, bool backItem, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The list of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ListBoxPrivate : public ListBoxSide {
public:
    /// `owner` is the facade, not owned. `backItem`: the left key goes back.
    ListBoxPrivate(List* owner, bool backItem);
};

/// The list of the 208 x 42 panel.
class DISPLAYAPI_EXPORT ListBoxPrivateWP1 : public ListBoxSide {
public:
    /// `owner` is the facade, not owned. `backItem`: the list ends with a row that goes back. It counts as no row:
    /// selected, the index is -1.
    ListBoxPrivateWP1(List* owner, bool backItem);
};

} // namespace DisplayAPI
