#pragma once

#include "DisplayAPI/Export.h"

#include <string>

class PegThing;

namespace DisplayAPI {

/// The GUI-thread side of an item. GUI thread only. Its end takes its widget out of the form that it stands in.
class DISPLAYAPI_EXPORT ItemPrivateIfc {
public:
    virtual ~ItemPrivateIfc() = default;

    /// The toolkit widget; null where there is nothing to show, which takes no room in a form.
    virtual PegThing* getWidget() = 0;

    /// The widget has been given to a form, whose widget will delete it.
    virtual void releaseOwnership() = 0;

    /// The widget has been taken back; this side deletes it again.
    virtual void gainOwnership() = 0;

    /// The language has changed: look translated texts up again.
    virtual void localeChanged(std::string locale) = 0;
};

} // namespace DisplayAPI
