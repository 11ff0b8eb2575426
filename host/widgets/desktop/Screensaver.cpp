#include "host/widgets/desktop/Screensaver.h"

#include "host/lcd/PictureFile.h"

namespace host {

void Screensaver::setPictures(const std::list<std::string>& paths)
{
    mEntries.clear();
    for (const std::string& path : paths)
        mEntries.push_back({.path = path});
    mCurrent = 0;
}

void Screensaver::next()
{
    if (!mEntries.empty())
        mCurrent = (mCurrent + 1) % mEntries.size();
}

const Picture& Screensaver::picture(int width, int height)
{
    static const Picture none;
    if (mEntries.empty())
        return none;
    Entry& entry = mEntries[mCurrent];
    if (!entry.picture || entry.width != width || entry.height != height)
        entry = {entry.path, readPicture(entry.path, width, height), width, height};
    return *entry.picture;
}

} // namespace host
