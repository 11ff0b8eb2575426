#pragma once

#include <array>
#include <cstddef>
#include <string>

class SystemWindow;

namespace DisplayAPI {

class ContentWidget;
class Displayable;
class DisplayablePrivate;
class DisplayPrivate;

/// The system window of a display: how many lines it has, who draws them, and which of them that one has not got yet.
/// The lines' texts are the window's own. GUI thread only.
class DisplaySystemWindow {
public:
    explicit DisplaySystemWindow(DisplayPrivate& display) : mDisplay(display) {}
    DisplaySystemWindow(const DisplaySystemWindow&) = delete;
    DisplaySystemWindow& operator=(const DisplaySystemWindow&) = delete;

    void setText(int line, std::string text);
    void setSize(int lines);
    void setTop(int top);

    /// Hands the lines that have changed to the current displayable if it draws them itself, otherwise lets the window
    /// float above it. Seven lines or more, or nothing current: nothing.
    void show(int lines);

    /// The same for a displayable that has just become current.
    void showAgain();

    /// Lets the window float with 1 or 2 lines; 0 takes it down on the full panel. More lines, or a display that is not
    /// visible: nothing.
    void popUp(int lines);

    /// Takes the lines from the displayable that was current before, and notes that the one that is current now has
    /// none of them yet.
    void changeHands();

    /// The one that was current before is not to lose its lines any more.
    void forgetPrevious() { mPreviousCurrent = nullptr; }
    void forget(const Displayable* displayable);

    /// The display has taken everything off the screen.
    void screenEmptied();

    /// Whether a size other than 0 has been set.
    bool isOn() const { return mIsOn; }

    /// The text of the screen, completed by the window's: on the small panel it stands in front, whatever is wanted; on
    /// the full one a window that floats stands behind, if it is wanted and the software has one.
    std::string addTo(const std::string& screen, bool wanted) const;

private:
    ContentWidget& content() const;
    SystemWindow& window() const;
    void handLinesTo(DisplayablePrivate& side, int lines);
    void handLineTo(DisplayablePrivate& side, int line, int lines);
    void floatAbove(Displayable& current, int lines);
    void putUp(int lines);
    void takeDown();
    void renewLine(int line);
    void markLines();
    std::string smallPanelText(const std::string& screen) const;

    static constexpr std::size_t MAX_LINES = 6;

    DisplayPrivate& mDisplay;
    std::array<bool, MAX_LINES> mInvalidLines{}; ///< not yet handed to the current displayable
    bool mIsOn = false;
    bool mIsReset = false;
    bool mFloats = false;
    int mFloatingLines = 0;
    int mSavedFloatingLines = 0; ///< what they were when the screen was emptied
    std::string mFloatingText;   ///< as the screen's text describes the window, since it was put up last
    Displayable* mPreviousCurrent = nullptr;
};

} // namespace DisplayAPI
