#pragma once

#include "DisplayAPI/PopupDialer.h"
#include "DisplayAPI/PopupDialerPrivateIfc.h"

namespace DisplayAPI {

/// A screen that has no use for a key offers it to its dialer, which comes up with it where it is one to dial with.
/// Null is no dialer. GUI thread only.
inline bool openWithInitialKey(PopupDialer* dialer, int key, DisplayablePrivate& screen)
{
    auto* const side = dialer != nullptr ? dynamic_cast<PopupDialerPrivateIfc*>(dialer->getPrivateImpl()) : nullptr;
    return side != nullptr && side->openWith(key, screen);
}

} // namespace DisplayAPI
