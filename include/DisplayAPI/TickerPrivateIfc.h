#pragma once

#include "DisplayAPI/Export.h"

#include <string>

class PegThing;

namespace DisplayAPI {

/// The GUI-thread side of a ticker. GUI thread only. Texts are UTF-8.
class DISPLAYAPI_EXPORT TickerPrivateIfc {
public:
    virtual ~TickerPrivateIfc() = default;

    virtual void setText(std::string text) = 0;
    virtual std::string getText() = 0;

    /// The toolkit's widget, which belongs to the caller from now on. The same one each time;
    /// null when it has been deleted meanwhile.
    virtual PegThing* getWidget() = 0;
};

} // namespace DisplayAPI
