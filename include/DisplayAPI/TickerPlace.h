#pragma once

#include "DisplayAPI/Export.h"
#include "toolkit/PegThing.h"

class KestrelListBox;

namespace DisplayAPI {

/// The ticker that runs in a list, and those that have run there. GUI thread only.
class DISPLAYAPI_EXPORT TickerPlace {
public:
    /// Shows `ticker` in the list; null shows none. The widget belongs to the list from now on, or where that is null
    /// to this. Returns whether the list looks different.
    bool show(KestrelListBox* list, PegThing* ticker);

private:
    void move(KestrelListBox& list, PegThing* ticker);
    void dropForgotten();

    PegThing mFormer; ///< holds them, never on screen: those with a facade may be changed and come back
};

} // namespace DisplayAPI
