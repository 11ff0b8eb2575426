#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayEventIfc.h"

#include <array>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace DisplayAPI::kit {

/// A display's status lines, which stay whatever is shown: a screen that comes back from under a popup has lost its
/// own, and gets them again from here.
///
/// Threads: make and delete it on the GUI thread; the rest is safe from any thread, and waits for the GUI thread as the
/// display's own operations do.
/// Ownership: the display outlives it, and has no other subscriber meanwhile.
class StatusLines : private DisplayEventIfc {
public:
    static constexpr int MOST = 6;

    /// Called on the GUI thread with each displayable that has become the current one, or null.
    using ScreenListener = std::function<void(Displayable*)>;

    explicit StatusLines(Display& display, ScreenListener screenListener = nullptr)
        : mDisplay(display), mScreenListener(std::move(screenListener))
    {
        mDisplay.subscribe(this);
    }
    StatusLines(const StatusLines&) = delete;
    StatusLines& operator=(const StatusLines&) = delete;
    ~StatusLines() override { mDisplay.unSubscribe(); }

    /// UTF-8. Lines outside 0 to 5 are ignored.
    void setText(int line, const std::string& text)
    {
        if (line < 0 || line >= MOST)
            return;
        {
            const std::lock_guard lock(mMutex);
            mLines.texts[static_cast<std::size_t>(line)] = text;
        }
        mDisplay.setSystemWindowText(line, text);
    }

    /// How many lines there are; 0 takes them off the screen. A screen takes another number only with a text that is
    /// sent, and they may come back to one that has no texts yet.
    void setSize(int lines)
    {
        {
            const std::lock_guard lock(mMutex);
            mLines.size = lines;
        }
        if (lines == 0)
            mDisplay.setSystemWindowSize(0);
        else
            sendAgain();
    }

private:
    struct Lines {
        std::array<std::optional<std::string>, MOST> texts;
        int size = 0;
    };

    void displayChanged(std::string) override
    {
        Displayable* const current = mDisplay.getCurrent();
        if (std::exchange(mCurrent, current) == current)
            return;
        if (current != nullptr)
            sendAgain();
        if (mScreenListener)
            mScreenListener(current);
    }

    void sendAgain()
    {
        std::unique_lock lock(mMutex);
        const Lines lines = mLines;
        lock.unlock();
        if (lines.size == 0)
            return;
        for (int line = 0; line < MOST; ++line)
            if (const auto& text = lines.texts[static_cast<std::size_t>(line)])
                mDisplay.setSystemWindowText(line, *text);
        mDisplay.setSystemWindowSize(lines.size);
    }

    Display& mDisplay;
    ScreenListener mScreenListener;
    Displayable* mCurrent = nullptr; ///< the GUI thread's; not read
    std::mutex mMutex;               ///< guards what follows; nothing is called under it
    Lines mLines;
};

} // namespace DisplayAPI::kit
