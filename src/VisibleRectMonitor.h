#pragma once

#include "utilities/Rect.h"

#include <vector>

namespace DisplayAPI {

class Displayable;

/// Records where each displayable lies on the screen. GUI thread only; displayables are not owned.
class VisibleRectMonitor {
public:
    void clear();

    /// Adds the rectangle of the displayable's widget; a displayable without one is skipped.
    void update(Displayable& displayable);

    /// Drops the displayable's first entry; ignored where it has none.
    void remove(Displayable& displayable);

    const std::vector<DisplayAPIUtils::Rect>& getVisibleRects() const { return mRects; }

private:
    std::vector<DisplayAPIUtils::Rect> mRects;
    std::vector<Displayable*> mDisplayables; ///< whose the rectangles are
};

} // namespace DisplayAPI
