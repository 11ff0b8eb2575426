#pragma once

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"

namespace host {

/// Gives away a row's width from where texts begin, or from where they end.
class Strip {
public:
    explicit Strip(const PegRect& area) : mRest(area) {}

    const PegRect& rest() const { return mRest; }
    PegRect fromStart(int width) { return isReadFromTheRight() ? fromRight(width) : fromLeft(width); }
    PegRect fromEnd(int width) { return isReadFromTheRight() ? fromLeft(width) : fromRight(width); }

    PegRect fromLeft(int width)
    {
        const PegRect part = rectAt(mRest.left, mRest.top, width, heightOf(mRest));
        mRest.left = static_cast<std::int16_t>(part.right + 1);
        return part;
    }

    PegRect fromRight(int width)
    {
        const PegRect part = rectAt(mRest.right + 1 - width, mRest.top, width, heightOf(mRest));
        mRest.right = static_cast<std::int16_t>(part.left - 1);
        return part;
    }

private:
    PegRect mRest;
};

} // namespace host
