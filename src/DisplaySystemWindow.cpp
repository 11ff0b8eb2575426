#include "DisplaySystemWindow.h"

#include "ContentWidget.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayPrivate.h"
#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "SystemWindowText.h"
#include "Variant.h"
#include "widgets/SystemWindow.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr int FLOATING_TOP = 40;
constexpr int HIDDEN_TOP = 127; ///< the last row of the full panel
constexpr int MOST_FLOATING_LINES = 2;

/// Whether the first size since the last reset has been set. All displays of the process share the system window's
/// place. GUI thread only.
bool gFirstSizeSet = false;

DisplayablePrivate* statusSide(Displayable& displayable)
{
    return dynamic_cast<DisplayablePrivate*>(displayable.getPrivateImpl());
}

bool isLine(int line)
{
    return line >= 0 && line < SystemWindow::MAX_LINES;
}

/// The dialer over the idle screen goes without lines.
bool isDialerOverIdleScreen(const Displayable& previous, const Displayable* current)
{
    return current != nullptr && previous.getName() == "IdleDisplay" && current->getName() == "PopupDialer";
}

} // namespace

ContentWidget& DisplaySystemWindow::content() const
{
    return *mDisplay.getContentWidget();
}

SystemWindow& DisplaySystemWindow::window() const
{
    return *content().getSystemWindow();
}

void DisplaySystemWindow::setText(int line, std::string text)
{
    gDisplayLog(TRACE, 1010, "PID = %d DisplayPrivate::setSystemWindowText lineIndex = %d, text = '%s'",
                static_cast<int>(getpid()), line, text.c_str());
    if (!mDisplay.isShown() || !isLine(line))
        return;
    content().setSystemWindowText(line, text.empty() ? " " : std::move(text));
    mInvalidLines[static_cast<std::size_t>(line)] = true;
    gDisplayLog(TRACE, 1016, "InvalidateSW[%d] = %d", line, 1);
}

void DisplaySystemWindow::setSize(int lines)
{
    gDisplayLog(TRACE, 1021, "setSystemWindowSize() PID = %d, no of lines = %d", static_cast<int>(getpid()), lines);
    if (!mDisplay.isShown())
        return;
    if (lines < 0) {
        gDisplayLog(REFUSED, 1025, "setSystemWindowSize() refused: %d lines", lines);
        return;
    }
    mIsOn = lines > 0;
    if (lines == 0) {
        mIsReset = true;
        gFirstSizeSet = false;
        mFloats = false;
    } else if (lines >= content().getSWCurrentNumLines() && !gFirstSizeSet) {
        gFirstSizeSet = true;
        mIsReset = false;
    }
    content().setSWCurrentNumLines(lines);
    show(lines);
}

void DisplaySystemWindow::setTop(int top)
{
    window().Layer(LAYER_SYSTEM_WINDOW);
    content().setSystemWindowTop(hardwareVariant() == SMALL_PANEL ? 0 : top, isFullPanel(), false);
}

void DisplaySystemWindow::show(int lines)
{
    Displayable* const current = mDisplay.getCurrent();
    if (lines > SystemWindow::MAX_LINES || current == nullptr)
        return;
    if (mDisplay.isShown()) {
        DisplayablePrivate* const side = statusSide(*current);
        if (side != nullptr && side->hasSystemWindow())
            handLinesTo(*side, lines);
        else
            floatAbove(*current, lines);
    }
    mDisplay.displayChanged();
}

void DisplaySystemWindow::showAgain()
{
    mIsReset = true;
    mFloats = false;
    show(content().getSWCurrentNumLines());
}

/// The current displayable draws the lines itself.
void DisplaySystemWindow::handLinesTo(DisplayablePrivate& side, int lines)
{
    content().setSystemWindowAsPopup(false);
    if (lines == 0) {
        side.setSysWindowSize(0);
        content().setSWCurrentNumLines(0);
        popUp(0);
    } else if (hardwareVariant() == SMALL_PANEL) {
        content().setSystemWindowAsPopup(true);
        renewLine(1);
    } else if (isFullPanel()) {
        for (int line = 0; line < lines; ++line)
            handLineTo(side, line, lines);
    }
}

void DisplaySystemWindow::handLineTo(DisplayablePrivate& side, int line, int lines)
{
    bool& isInvalid = mInvalidLines[static_cast<std::size_t>(line)];
    if (!isInvalid)
        return;
    gDisplayLog(TRACE, 1076, "showSW() adding system text for line %d to current widget '%s'", line,
                nameOf(mDisplay.getCurrent()));
    side.setSysWindowText(content().getSystemWindowText(line), line);
    side.setSysWindowSize(lines);
    isInvalid = false;
}

void DisplaySystemWindow::floatAbove(Displayable& current, int lines)
{
    if (isFullPanel() && content().getSWCurrentNumLines() == 0)
        return popUp(0);
    if (isFullPanel()) {
        const PegThing* const widget = widgetOf(&current);
        gDisplayLog(TRACE, 1089, "showSW() (mCurrent->getPrivateImpl()->getWidget())->Type() == %d",
                    widget != nullptr ? static_cast<int>(widget->Type()) : 0);
    }
    content().setSystemWindowAsPopup(true);
    if (isFullPanel() && !mIsOn)
        return;
    gDisplayLog(TRACE, 1095, "Popup old SYSTEM WINDOW");
    popUp(lines);
}

void DisplaySystemWindow::popUp(int lines)
{
    if (lines < 0 || lines > MOST_FLOATING_LINES || !mDisplay.isShown())
        return;
    mFloatingLines = lines;
    if (isFullPanel())
        content().showLine(true);
    if (lines > 0)
        putUp(lines);
    else if (isFullPanel())
        takeDown();
    mFloatingText = systemWindowObject(content().getSystemWindowText(0), content().getSystemWindowText(1));
}

void DisplaySystemWindow::putUp(int lines)
{
    setTop(FLOATING_TOP);
    content().setSystemWindowSize(lines);
    if (gpPresent != nullptr) {
        gpPresent->Remove(&window(), false);
        gpPresent->Add(&window(), true);
    }
    content().setSWCurrentNumLines(lines);
    if (isFullPanel() && softwareType() == KVX)
        mFloatingLines = SystemWindow::MAX_LINES;
    for (int line = 0; line < mFloatingLines; ++line)
        renewLine(line);
    mFloats = true;
}

void DisplaySystemWindow::takeDown()
{
    content().setSWCurrentNumLines(0);
    if (window().Parent() == nullptr)
        return;
    setTop(HIDDEN_TOP);
    removeFromScreen(&window());
    mFloats = false;
}

/// Sets a line from its own text: the window draws it anew.
void DisplaySystemWindow::renewLine(int line)
{
    content().setSystemWindowText(line, content().getSystemWindowText(line));
}

void DisplaySystemWindow::changeHands()
{
    Displayable* const current = mDisplay.getCurrent();
    if (mPreviousCurrent == nullptr)
        mPreviousCurrent = current;
    if (current == mPreviousCurrent)
        return;
    if (DisplayablePrivate* previous = statusSide(*mPreviousCurrent))
        previous->setSysWindowSize(0);
    if (isDialerOverIdleScreen(*mPreviousCurrent, current))
        gDisplayLog(TRACE, 680,
                    "clearSWfromDisplayable()  **  previousName == IdleDisplay && currentName == PopupDialer");
    else
        markLines();
    mPreviousCurrent = current;
}

void DisplaySystemWindow::markLines()
{
    const auto lines = std::clamp(content().getSWCurrentNumLines(), 0, static_cast<int>(mInvalidLines.size()));
    std::fill_n(mInvalidLines.begin(), lines, true);
}

void DisplaySystemWindow::forget(const Displayable* displayable)
{
    if (mPreviousCurrent == displayable)
        mPreviousCurrent = nullptr;
}

void DisplaySystemWindow::screenEmptied()
{
    mSavedFloatingLines = mFloatingLines;
    content().setSystemWindowSize(0);
}

std::string DisplaySystemWindow::addTo(const std::string& screen, bool wanted) const
{
    if (hardwareVariant() == SMALL_PANEL)
        return smallPanelText(screen) + screen;
    const bool mayFloat = isFullPanel() && softwareType() == KVX;
    return mayFloat && wanted && mFloats ? screen + mFloatingText : screen;
}

std::string DisplaySystemWindow::smallPanelText(const std::string& screen) const
{
    const bool menuOnTop = mIsReset && holdsSmallContextMenu(screen);
    return presentSystemWindowObject(content().getSystemWindowText(0),
                                     menuOnTop ? firstMenuLine(screen) : content().getSystemWindowText(1));
}

} // namespace DisplayAPI
