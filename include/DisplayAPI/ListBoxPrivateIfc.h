#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class Displayable;
class ListItemPrivateIfc;
class PopupDialer;
class TickerPrivateIfc;

/// The GUI-thread side of a list. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Rows, listeners,
/// tickers and dialers are not owned; texts are UTF-8. What has a name of the list's, or of DisplayablePrivate's, does
/// what that promises of it.
class DISPLAYAPI_EXPORT ListBoxPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~ListBoxPrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual void join(DisplayablePrivate* other) = 0;
    virtual void disjoin() = 0;
    virtual bool hasCaption() = 0;
    virtual void setSysWindowSize(int lines) = 0;
    virtual void setSysWindowText(std::string text, int line) = 0;
    virtual bool hasSystemWindow() = 0;

    virtual int size() = 0;
    virtual void append(ListItemPrivateIfc* row) = 0;
    virtual void clear() = 0;

    /// -1 where no row is selected.
    virtual int getSelectedIndex() = 0;

    /// Rows outside the list are ignored.
    virtual void setSelectedIndex(int index) = 0;

    /// The same; a list without this operation selects nothing.
    virtual void setSelected(ListItemPrivateIfc* row);

    /// A negative index inserts at the front, one past the end appends.
    virtual void insertAt(ListItemPrivateIfc* row, int index) = 0;

    /// Takes `row` out; `index` is the caller's and may not be where the row is.
    virtual void removeAt(int index, ListItemPrivateIfc* row) = 0;

    /// Takes `row` out; ignored where it is not in the list.
    virtual void remove(ListItemPrivateIfc* row) = 0;

    /// Takes the place of an earlier one; null takes that off. The widget is the list's from then on.
    virtual void setTicker(TickerPrivateIfc* ticker) = 0;

    virtual void setTitle(const std::string& title) = 0;

    /// The translation is not owned and has to live as long as the list shows it.
    virtual void setTitle(TranslationInfo* title) = 0;

    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, const std::string& text) = 0;

    /// The facade.
    virtual Displayable* getParent() const = 0;

    /// Takes the widget off the screen and back from the presentation manager.
    virtual void hide() = 0;

    /// Whether a digit, star or hash that no row has a use for opens the dialer with it.
    virtual void showDiallerOnInitialKeyEvent(bool on) = 0;
    virtual void setDialler(PopupDialer* dialler) = 0;

    /// Takes it off the screen; it stays the list's.
    virtual void dismissDialler() = 0;

    /// Whether the selected row is shown inverted.
    virtual void setSelectionHighlight(bool on) = 0;
};

} // namespace DisplayAPI
