#pragma once

#include "toolkit/PegRect.h"

#include <string>
#include <vector>

namespace host {

/// A widget and those on it, the bottom one first.
struct WidgetNode {
    std::string type; ///< its class
    PegRect area;
    bool hasFocus = false;
    std::string owner; ///< the class of the facade that it belongs to; empty for the system's
    std::vector<WidgetNode> children;
};

/// What is on the screen and under it. GUI thread only.
struct WidgetTree {
    std::vector<std::string> displayables; ///< classes of facades, the top of the stack first
    WidgetNode root;                       ///< the presentation manager

    /// REQUIRES: the toolkit is up.
    static WidgetTree read();
};

} // namespace host
