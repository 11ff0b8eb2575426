#pragma once

#include "kit/StatusLines.h"

#include <atomic>
#include <cstdint>
#include <string>

namespace deskphone {

class Telephone;

/// The lines above the screens: the telephone's own name with the time of day, and in a call whom it is with and for
/// how long. On the small panel, where they cover the screen, there are none but in a call. Safe from any thread.
class StatusLines {
public:
    StatusLines(Telephone& telephone, DisplayAPI::kit::StatusLines& lines);

    /// REQUIRES: the display is shown.
    void open();

    /// What the first line says: which of the telephone's lines it is about; where it is not a call's, with what is the
    /// matter with that. On the GUI thread.
    void setOwnName(const std::string& name, const std::string& status);

    /// Takes them off the large panels, and puts them back.
    void setVisible(bool visible);

    /// Somebody is called who has not answered yet.
    void callTo(const std::string& party);

    /// Somebody has answered, so many seconds ago.
    void talkWith(const std::string& party, std::int64_t seconds);

    void callEnds();

private:
    void showParty(const std::string& party);
    void setCount(int count);
    void send();

    Telephone& mTelephone;
    DisplayAPI::kit::StatusLines& mLines;
    std::string mOwnName; ///< the GUI thread's, as the next one is
    std::string mOwnStatus;
    std::atomic<int> mCount{0};
    std::atomic<bool> mIsVisible{true};
};

} // namespace deskphone
