#pragma once

#include "host/lcd/Lcd.h"

#include <string>

namespace host {

/// A picture of a file, as large as there is room for it. One that cannot be read is told once.
class Logo {
public:
    /// Empty is none. The same path may have another picture by now.
    void setPath(std::string path);

    /// Empty where there is none. Read when the room is another than the last time.
    const Picture& in(int width, int height) const;

private:
    std::string mPath;
    mutable Picture mPicture;
    mutable int mWidth = 0;
    mutable int mHeight = 0;
    mutable bool mHasNone = true;
};

} // namespace host
