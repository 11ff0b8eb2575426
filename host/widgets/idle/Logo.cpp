#include "host/widgets/idle/Logo.h"

#include "host/lcd/PictureFile.h"

#include <utility>

namespace host {

void Logo::setPath(std::string path)
{
    mPath = std::move(path);
    mPicture = {};
    mWidth = mHeight = 0;
    mHasNone = mPath.empty();
}

const Picture& Logo::in(int width, int height) const
{
    if (mHasNone || (width == mWidth && height == mHeight))
        return mPicture;
    mPicture = readPicture(mPath, width, height);
    mWidth = width;
    mHeight = height;
    mHasNone = mPicture.pixels.empty();
    return mPicture;
}

} // namespace host
