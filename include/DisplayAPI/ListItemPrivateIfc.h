#pragma once

#include "DisplayAPI/Export.h"

#include <string>

class KestrelListBoxItem;
class TranslationInfo;

namespace DisplayAPI {

/// The GUI-thread side of a list row. GUI thread only.
class DISPLAYAPI_EXPORT ListItemPrivateIfc {
public:
    virtual ~ListItemPrivateIfc() = default;

    /// The language has changed: look translated texts up again.
    virtual void localeChanged(std::string locale) = 0;

    /// Somebody else deletes the toolkit row from now on. The library does not call it, and a toolkit's list deletes no
    /// row: each goes with its side.
    virtual void releaseOwnership() = 0;

    /// This side deletes the toolkit row again.
    virtual void gainOwnership();

    /// A row's text is fixed: these do nothing unless the row is of another kind.
    virtual void setText(std::string text);
    virtual void setText(TranslationInfo* text);

    /// The toolkit row; never null, not the caller's.
    virtual KestrelListBoxItem* getKestrelListItem() = 0;
};

} // namespace DisplayAPI
