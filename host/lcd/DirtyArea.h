#pragma once

#include "toolkit/PegRect.h"

#include <vector>

namespace host {

/// What has to be painted again: a few rectangles of which no two share a pixel.
class DirtyArea {
public:
    void add(PegRect area);

    bool isEmpty() const { return mRects.empty(); }

    /// Returns the rectangles and forgets them.
    std::vector<PegRect> take();

private:
    static constexpr std::size_t MAX_RECTS = 8;

    std::vector<PegRect> mRects;
};

} // namespace host
