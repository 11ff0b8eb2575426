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

    /// The toolkit row has been given to a list that will delete it.
    virtual void releaseOwnership() = 0;

    /// The toolkit row has been taken back; this side deletes it again.
    virtual void gainOwnership();

    virtual void setText(std::string text);
    virtual void setText(TranslationInfo* text);

    /// The toolkit row; never null.
    virtual KestrelListBoxItem* getKestrelListItem() = 0;
};

} // namespace DisplayAPI
