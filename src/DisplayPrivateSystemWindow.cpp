#include "DisplayPrivate.h"

#include "ContentWidget.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "Log.h"
#include "StackEntry.h"
#include "SystemWindowText.h"
#include "Variant.h"
#include "widgets/KestrelListBoxWithTitle.h"
#include "widgets/StatusMessage.h"
#include "widgets/SystemWindow.h"

#include <algorithm>
#include <unistd.h>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::DisplayPrivate", "./src/DisplayPrivate"};

constexpr int POPUP_TOP = 40;
constexpr int HIDDEN_TOP = 127; ///< the last row of the full panel
constexpr int MOST_POPUP_LINES = 2;

/// Whether the first size since the last reset has been set. All displays of the process share the system window's
/// place. GUI thread only.
bool gFirstSizeSet = false;

DisplayablePrivate* statusSide(Displayable* displayable)
{
    return dynamic_cast<DisplayablePrivate*>(displayable->getPrivateImpl());
}

bool isLine(int line)
{
    return line >= 0 && line < SystemWindow::MAX_LINES;
}

} // namespace

void DisplayPrivate::setSystemWindowText(int line, std::string text)
{
    gLog(TRACE, 1010, "PID = %d DisplayPrivate::setSystemWindowText lineIndex = %d, text = '%s'",
         static_cast<int>(getpid()), line, text.c_str());
    if (!mVisible || !isLine(line))
        return;
    mContentWidget->setSystemWindowText(line, text.empty() ? " " : std::move(text));
    mInvalidSystemWindowLines[static_cast<std::size_t>(line)] = true;
    gLog(TRACE, 1016, "InvalidateSW[%d] = %d", line, 1);
}

void DisplayPrivate::setSystemWindowSize(int lines)
{
    gLog(TRACE, 1021, "setSystemWindowSize() PID = %d, no of lines = %d", static_cast<int>(getpid()), lines);
    if (!mVisible)
        return;
    if (lines < 0) {
        gLog(REFUSED, 1025, "setSystemWindowSize() refused: %d lines", lines);
        return;
    }
    mSystemWindowOn = lines > 0;
    if (lines == 0) {
        mSystemWindowReset = true;
        gFirstSizeSet = false;
        mPopupShown = false;
    } else if (lines >= mContentWidget->getSWCurrentNumLines() && !gFirstSizeSet) {
        gFirstSizeSet = true;
        mSystemWindowReset = false;
    }
    mContentWidget->setSWCurrentNumLines(lines);
    showSW(lines);
}

void DisplayPrivate::showSW(int lines)
{
    if (lines > SystemWindow::MAX_LINES || mCurrent == nullptr)
        return;
    if (mVisible) {
        DisplayablePrivate* const side = statusSide(mCurrent);
        if (side != nullptr && side->hasSystemWindow())
            handLinesTo(*side, lines);
        else
            floatSystemWindow(lines);
    }
    displayChanged();
}

/// The current displayable draws the lines itself.
void DisplayPrivate::handLinesTo(DisplayablePrivate& side, int lines)
{
    mContentWidget->setSystemWindowAsPopup(false);
    if (lines == 0) {
        side.setSysWindowSize(0);
        mContentWidget->setSWCurrentNumLines(0);
        systemWindowPopup(0);
    } else if (hardwareVariant() == SMALL_PANEL) {
        mContentWidget->setSystemWindowAsPopup(true);
        renewLine(1);
    } else if (isFullPanel()) {
        for (int line = 0; line < lines; ++line)
            handLineTo(side, line, lines);
    }
}

void DisplayPrivate::handLineTo(DisplayablePrivate& side, int line, int lines)
{
    bool& isInvalid = mInvalidSystemWindowLines[static_cast<std::size_t>(line)];
    if (!isInvalid)
        return;
    gLog(TRACE, 1076, "showSW() adding system text for line %d to current widget '%s'", line, nameOf(mCurrent));
    side.setSysWindowText(mContentWidget->getSystemWindowText(line), line);
    side.setSysWindowSize(lines);
    isInvalid = false;
}

/// The system window lies above the current displayable.
void DisplayPrivate::floatSystemWindow(int lines)
{
    if (isFullPanel() && mContentWidget->getSWCurrentNumLines() == 0)
        return systemWindowPopup(0);
    if (isFullPanel()) {
        const PegThing* const widget = widgetOf(mCurrent);
        gLog(TRACE, 1089, "showSW() (mCurrent->getPrivateImpl()->getWidget())->Type() == %d",
             widget != nullptr ? static_cast<int>(widget->Type()) : 0);
    }
    mContentWidget->setSystemWindowAsPopup(true);
    if (isFullPanel() && !mSystemWindowOn)
        return;
    gLog(TRACE, 1095, "Popup old SYSTEM WINDOW");
    systemWindowPopup(lines);
}

void DisplayPrivate::systemWindowPopup(int lines)
{
    if (lines < 0 || lines > MOST_POPUP_LINES || !mVisible)
        return;
    mPopupLines = lines;
    if (isFullPanel())
        mContentWidget->showLine(true);
    if (lines > 0)
        showPopup(lines);
    else if (isFullPanel())
        takePopupDown();
    mSystemWindowText =
        systemWindowObject(mContentWidget->getSystemWindowText(0), mContentWidget->getSystemWindowText(1));
}

void DisplayPrivate::showPopup(int lines)
{
    SystemWindow* const window = mContentWidget->getSystemWindow();
    setSystemWindowTop(POPUP_TOP);
    mContentWidget->setSystemWindowSize(lines);
    if (gpPresent != nullptr) {
        gpPresent->Remove(window, false);
        gpPresent->Add(window, true);
    }
    mContentWidget->setSWCurrentNumLines(lines);
    if (isFullPanel() && softwareType() == KVX)
        mPopupLines = SystemWindow::MAX_LINES;
    for (int line = 0; line < mPopupLines; ++line)
        renewLine(line);
    mPopupShown = true;
}

void DisplayPrivate::takePopupDown()
{
    SystemWindow* const window = mContentWidget->getSystemWindow();
    mContentWidget->setSWCurrentNumLines(0);
    if (window->Parent() == nullptr)
        return;
    setSystemWindowTop(HIDDEN_TOP);
    removeFromScreen(window);
    mPopupShown = false;
}

/// Sets a line from its own text: the window draws it anew.
void DisplayPrivate::renewLine(int line)
{
    mContentWidget->setSystemWindowText(line, mContentWidget->getSystemWindowText(line));
}

void DisplayPrivate::setSystemWindowTop(int top)
{
    mContentWidget->getSystemWindow()->Layer(LAYER_SYSTEM_WINDOW);
    mContentWidget->setSystemWindowTop(hardwareVariant() == SMALL_PANEL ? 0 : top, isFullPanel(), false);
}

void DisplayPrivate::listInWidgetSetSWLines(int before, int lines)
{
    PegThing* const widget = widgetOf(mCurrent);
    if (!mVisible || widget == nullptr || widget->Type() != TYPE_LIST_WITH_TITLE || lines != before + 1)
        return;
    if (auto* list = dynamic_cast<KestrelListBoxWithTitle*>(widget))
        list->setSystemWindowLines(lines);
}

/// Takes the system window's lines from the displayable that was current before, and notes that the one that is current
/// now has none of them yet.
void DisplayPrivate::clearSWfromDisplayable()
{
    if (mPreviousCurrent == nullptr) {
        mPreviousCurrent = mCurrent;
        return;
    }
    if (mCurrent == mPreviousCurrent)
        return;
    if (DisplayablePrivate* previous = statusSide(mPreviousCurrent))
        previous->setSysWindowSize(0);
    if (mCurrent != nullptr && mPreviousCurrent->getName() == "IdleDisplay" && mCurrent->getName() == "PopupDialer") {
        gLog(TRACE, 680, "clearSWfromDisplayable()  **  previousName == IdleDisplay && currentName == PopupDialer");
    } else {
        const auto lines =
            std::clamp(mContentWidget->getSWCurrentNumLines(), 0, static_cast<int>(mInvalidSystemWindowLines.size()));
        std::fill_n(mInvalidSystemWindowLines.begin(), lines, true);
    }
    mPreviousCurrent = mCurrent;
}

void DisplayPrivate::showTimeInSystemWindow(bool on)
{
    mContentWidget->showTimeInSystemWindow(on);
    displayChanged();
}

void DisplayPrivate::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    mContentWidget->setTimeInSystemWindow(hours, minutes, seconds);
    displayChanged();
}

void DisplayPrivate::setTimer(std::string text)
{
    mContentWidget->setTimer(std::move(text));
    displayChanged();
}

void DisplayPrivate::stopTimer()
{
    mContentWidget->stopTimer();
    displayChanged();
}

void DisplayPrivate::setStatusMessage(const std::string& text, unsigned int timeout)
{
    gLog(TRACE, 1220, "setStatusMessage() called with text='%s' and timeout=%d", text.c_str(),
         static_cast<int>(timeout));
    if (mStatusWidget != nullptr) {
        removeFromScreen(mStatusWidget.get());
        mStatusWidget.reset();
    }
    if (text.empty())
        return;
    mStatusWidget = std::make_unique<StatusMessage>(text, timeout);
    gLog(TRACE, 1229, "Created status widget");
    if (!mVisible)
        return;
    addToScreen(mStatusWidget.get());
    gLog(TRACE, 1233, "Added status widget to screen");
}

} // namespace DisplayAPI
