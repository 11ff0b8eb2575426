#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "widgets/KestrelListBox.h"

namespace DisplayAPI {

/// Tells whoever hears the list box of a screen that its rows look different. The screen may be gone then. Null, and a
/// screen without a list box, tell nobody. GUI thread only.
inline void tellRowsChanged(DisplayablePrivateIfc* side)
{
    auto* const box = side != nullptr ? dynamic_cast<KestrelListBox*>(side->getWidget()) : nullptr;
    if (box != nullptr)
        box->tellRowsChanged();
}

} // namespace DisplayAPI
