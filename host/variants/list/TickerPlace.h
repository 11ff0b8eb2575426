#pragma once

#include "DisplayAPI/ListBoxCore.h"

namespace DisplayAPI {

/// The ticker that runs in a list, and those that have run there. GUI thread only.
class TickerPlace {
public:
    /// Shows `ticker` in the list of `core`; null shows none. The widget belongs to the list from now on.
    void show(ListBoxCore& core, PegThing* ticker);

private:
    void move(KestrelListBox& list, PegThing* ticker);
    void dropForgotten();

    PegThing mFormer; ///< holds them, never on screen: those with a facade may be changed and come back
};

} // namespace DisplayAPI
