#pragma once

#include "DisplayAPI/SearchListBoxPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/list/ListScreenSide.h"

#include <memory>

namespace DisplayAPI {

class SearchList;

/// The GUI-thread side of a search list, whatever the panel.
class DISPLAYAPI_EXPORT SearchListBoxSide : public ListScreenSide, public SearchListBoxPrivateIfc {
public:
    ~SearchListBoxSide() override;

    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    int size() override;
    void append(ListItemPrivateIfc* row) override;
    void clear() override;
    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void removeAt(int index, ListItemPrivateIfc* row) override;
    void remove(ListItemPrivateIfc* row) override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void showSearchPopup() override;
    void dismissSearchPopup() override;
    bool isSearchPopupVisible() override;
    void setSearchText(std::string text) override;
    std::string getSearchText() override;
    void setCountIndicator(int count) override;
    void setSearchCountIndicator(int count) override;
    void localeChanged() override;

protected:
    SearchListBoxSide(SearchList* owner, Panel panel);

private:
    Screen& screen() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The search list of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT SearchListBoxPrivate : public SearchListBoxSide {
public:
    /// `owner` is the facade, not owned.
    explicit SearchListBoxPrivate(SearchList* owner);
};

/// The search list of the 208 x 42 panel.
class DISPLAYAPI_EXPORT SearchListBoxPrivateWP1 : public SearchListBoxSide {
public:
    /// `owner` is the facade, not owned.
    explicit SearchListBoxPrivateWP1(SearchList* owner);
};

} // namespace DisplayAPI
