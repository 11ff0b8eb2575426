#pragma once

namespace DisplayAPI {

/// What a private side and its WP1 twin differ in.
enum class Panel {
    FULL, ///< 240 x 128, and its narrow form
    SMALL ///< 208 x 42: two lines of text
};

} // namespace DisplayAPI
