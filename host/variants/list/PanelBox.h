#pragma once

#include "DisplayAPI/WatchedWidget.h"
#include "variants/Panel.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <utility>

namespace DisplayAPI {

/// The panel's list box.
inline WatchedWidget<KestrelListBox> makeBox(Panel panel)
{
    using Box = WatchedWidget<KestrelListBox>;
    return panel == Panel::FULL ? Box(std::in_place_type<KestrelListBoxWithTitle>)
                                : Box(std::in_place_type<KestrelListBoxWP1>);
}

} // namespace DisplayAPI
