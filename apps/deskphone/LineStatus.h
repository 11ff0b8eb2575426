#pragma once

#include "apps/deskphone/LineSigns.h"

#include <optional>

namespace deskphone {

class Home;
class Telephone;

/// Tells at home and on the status line how the lines stand, and says so when calls go out on another one. Make it on
/// the GUI thread.
class LineStatus {
public:
    LineStatus(Telephone& telephone, Calls& calls, Home& home);

private:
    void lineChanged();

    /// On the GUI thread, so that what is found out last is shown last.
    void refresh();

    Telephone& mTelephone;
    OwnLines& mLines;
    Home& mHome;
    exchange::Line mOutgoing; ///< as the user has been told
    std::optional<LineSigns> mShown;
};

} // namespace deskphone
