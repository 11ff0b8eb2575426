#pragma once

#include "DisplayAPI/Export.h"

#include <string>

class Peg_TreeListItem;

namespace DisplayAPI {

/// The GUI-thread side of a node of a tree. GUI thread only.
class DISPLAYAPI_EXPORT TreeNodePrivateIfc {
public:
    virtual ~TreeNodePrivateIfc() = default;

    /// Behind those that are there; not owned.
    virtual void addNode(TreeNodePrivateIfc* node) = 0;

    virtual void setInactive(bool on) = 0;
    virtual void setProtected(bool on) = 0;
    virtual bool getProtected() = 0;
    virtual void removeBack(bool on) = 0;

    /// The language has changed: look a translated text up again.
    virtual void localeChanged(std::string locale) = 0;

    /// The toolkit row; never null, not the caller's.
    virtual Peg_TreeListItem* getTreeListItem() = 0;
};

} // namespace DisplayAPI
