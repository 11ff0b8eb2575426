#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;

/// The GUI-thread side of a tab screen. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Pages,
/// listeners and translations are not owned; texts are UTF-8. A page is taken out before it goes. Tabs that are not
/// there are ignored.
class DISPLAYAPI_EXPORT TabScreenPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~TabScreenPrivateIfc() = default;

public:
    /// A null page leaves the tab empty. The first tab is the current one, whatever `current` says.
    virtual void addTab(const std::string& title, DisplayablePrivateIfc* page, bool current) = 0;
    virtual void addTab(TranslationInfo* title, DisplayablePrivateIfc* page, bool current) = 0;

    virtual int numberOfTabs() = 0;

    /// Null empties the tab.
    virtual void setCurrentDisplayable(DisplayablePrivateIfc* page) = 0;
    virtual void setCurrentDisplayableForTabAtIndex(int index, DisplayablePrivateIfc* page) = 0;

    /// The first tab with that page. Null is ignored: an empty tab is removed by its index.
    virtual void removeTab(DisplayablePrivateIfc* page) = 0;
    virtual void removeTabAtIndex(int index) = 0;

    virtual void nextTab() = 0;

    /// -1 where there is no tab.
    virtual int getCurrentTabIndex() = 0;
    virtual void setCurrentTabIndex(int index) = 0;

    virtual void setTitleForTabAtIndex(int index, const std::string& title) = 0;
    virtual void setTitleForTabAtIndex(int index, TranslationInfo* title) = 0;
    virtual std::string getTitleForTabAtIndex(int index) = 0;

    virtual void localeChanged(const std::string& locale) = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
};

} // namespace DisplayAPI
