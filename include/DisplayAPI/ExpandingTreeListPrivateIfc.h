#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ListItemPrivateIfc;

/// The GUI-thread side of a tree list. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Rows,
/// listeners and translations are not owned; texts are UTF-8. What has a name of the facade's does what that promises.
class DISPLAYAPI_EXPORT ExpandingTreeListPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~ExpandingTreeListPrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    /// Below the last row that stands less deep. Null counts as a row, which is not shown.
    virtual void append(ListItemPrivateIfc* row, int level) = 0;
    virtual void clear() = 0;
    virtual int getSelectedIndex() = 0;
    virtual void setTitle(const std::string& title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;
    virtual void align() = 0;
    virtual void unalign() = 0;
    virtual void setReadonly(int index, bool on) = 0;
    virtual void setRightArrowEqualsOK(bool on) = 0;
};

} // namespace DisplayAPI
