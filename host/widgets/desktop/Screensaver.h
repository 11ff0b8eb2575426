#pragma once

#include "host/lcd/Lcd.h"

#include <list>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Pictures in turn. Each is read once, when its turn comes. GUI thread only.
class Screensaver {
public:
    static constexpr int TURN = 10'000; ///< milliseconds

    void setPictures(const std::list<std::string>& paths);

    void start() { mIsOn = true; }
    void stop() { mIsOn = false; }
    bool isOn() const { return mIsOn; }

    /// Whether another picture follows.
    bool turns() const { return mIsOn && mEntries.size() > 1; }
    void next();

    /// The one whose turn it is, where there is so much room; empty where there is none.
    const Picture& picture(int width, int height);

private:
    struct Entry {
        std::string path;
        std::optional<Picture> picture{}; ///< nothing before it has been read
        int width = 0;                    ///< the room for which it has been
        int height = 0;
    };

    std::vector<Entry> mEntries;
    std::size_t mCurrent = 0;
    bool mIsOn = false;
};

} // namespace host
