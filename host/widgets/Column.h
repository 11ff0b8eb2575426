#pragma once

#include "host/lcd/Geometry.h"

namespace host {

/// Gives away a column's height from above or below, as long as there is any; then nothing.
class Column {
public:
    explicit Column(const PegRect& area) : mRest(area) {}

    const PegRect& rest() const { return mRest; }

    PegRect fromTop(int height)
    {
        if (height > heightOf(mRest))
            return rectAt(0, 0, 0, 0);
        const PegRect part = rectAt(mRest.left, mRest.top, widthOf(mRest), height);
        mRest.top = static_cast<std::int16_t>(mRest.top + height);
        return part;
    }

    PegRect fromBottom(int height)
    {
        if (height > heightOf(mRest))
            return rectAt(0, 0, 0, 0);
        mRest.bottom = static_cast<std::int16_t>(mRest.bottom - height);
        return rectAt(mRest.left, mRest.bottom + 1, widthOf(mRest), height);
    }

private:
    PegRect mRest;
};

} // namespace host
