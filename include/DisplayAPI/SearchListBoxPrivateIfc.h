#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ListItemPrivateIfc;

/// The GUI-thread side of a search list. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Rows,
/// listeners and translations are not owned; texts are UTF-8. What has a name of the facade's does what that promises.
class DISPLAYAPI_EXPORT SearchListBoxPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~SearchListBoxPrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    virtual int size() = 0;
    virtual void append(ListItemPrivateIfc* row) = 0;
    virtual void clear() = 0;
    virtual int getSelectedIndex() = 0;
    virtual void setSelectedIndex(int index) = 0;
    virtual void insertAt(ListItemPrivateIfc* row, int index) = 0;

    /// Takes `row` out; `index` is the caller's and may not be where the row is.
    virtual void removeAt(int index, ListItemPrivateIfc* row) = 0;

    /// Takes `row` out; ignored where it is not in the list.
    virtual void remove(ListItemPrivateIfc* row) = 0;

    virtual void setTitle(const std::string& title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;

    virtual void showSearchPopup() = 0;
    virtual void dismissSearchPopup() = 0;
    virtual bool isSearchPopupVisible() = 0;
    virtual void setSearchText(std::string text) = 0;
    virtual std::string getSearchText() = 0;

    virtual void setCountIndicator(int count) = 0;
    virtual void setSearchCountIndicator(int count) = 0;

    /// Looks a translated title up anew, and tells the display: the rows have another language by then. The list may
    /// be gone then.
    virtual void localeChanged() = 0;
};

} // namespace DisplayAPI
