#pragma once

#include <typeinfo>
#include <vector>

class PegThing;

/// What a display has on its stack: a facade's class, and the widget of its private side, null where that has none.
struct StackedDisplayable {
    const std::type_info* facade;
    const PegThing* widget;
};

/// What the library has for whoever looks at it from outside: the stack of the latest display, the top first. GUI
/// thread only. Null where the library is not loaded.
extern std::vector<StackedDisplayable> (*gpDisplayStack)();
