#pragma once

#include "kit/StatusLines.h"
#include "kit/Text.h"

namespace deskphone {

using DisplayAPI::kit::Text;

class Telephone;

/// The lines above the screens: the telephone's own name with the time of day, and in a call whom it is with and for
/// how long. On the small panel, where they cover the screen, there are none but in a call. Safe from any thread.
class StatusLines {
public:
    explicit StatusLines(Telephone& telephone);

    /// REQUIRES: the display is shown.
    void open();

    void callBegins(const std::string& party);
    void callEnds();

private:
    void showOwnName();

    Telephone& mTelephone;
    DisplayAPI::kit::StatusLines mLines;
    Text mOwnName;
};

} // namespace deskphone
