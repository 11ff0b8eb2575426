#pragma once

#include "DisplayAPI/ListBoxCore.h"
#include "variants/list/ListScreenSide.h"

namespace DisplayAPI {

/// What the screen of a list box is made of: the box with its rows and its title.
struct ListScreenSide::Screen {
    ListBoxCore& core;
};

} // namespace DisplayAPI
