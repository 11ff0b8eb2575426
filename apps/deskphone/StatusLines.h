#pragma once

#include "kit/StatusLines.h"
#include "kit/Text.h"

#include <atomic>

namespace deskphone {

using DisplayAPI::kit::Text;

class Telephone;

/// The lines above the screens: the telephone's own name with the time of day, and in a call whom it is with and for
/// how long. On the small panel, where they cover the screen, there are none but in a call. Safe from any thread.
class StatusLines {
public:
    StatusLines(Telephone& telephone, DisplayAPI::kit::StatusLines& lines);

    /// REQUIRES: the display is shown.
    void open();

    /// Takes them off the large panels, and puts them back.
    void setVisible(bool visible);

    void callBegins(const std::string& party);
    void callEnds();

private:
    void showOwnName();
    void setCount(int count);

    Telephone& mTelephone;
    DisplayAPI::kit::StatusLines& mLines;
    Text mOwnName;
    std::atomic<int> mCount{0};
    std::atomic<bool> mIsVisible{true};
};

} // namespace deskphone
