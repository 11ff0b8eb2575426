#include "DisplayPrivate.h"

#include "ContentWidget.h"
#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "widgets/KestrelListBoxWithTitle.h"
#include "widgets/StatusMessage.h"

namespace DisplayAPI {

void DisplayPrivate::setSystemWindowText(int line, std::string text)
{
    mSystemWindow.setText(line, std::move(text));
}

void DisplayPrivate::setSystemWindowSize(int lines)
{
    mSystemWindow.setSize(lines);
}

void DisplayPrivate::showSW(int lines)
{
    mSystemWindow.show(lines);
}

void DisplayPrivate::systemWindowPopup(int lines)
{
    mSystemWindow.popUp(lines);
}

void DisplayPrivate::setSystemWindowTop(int top)
{
    mSystemWindow.setTop(top);
}

void DisplayPrivate::listInWidgetSetSWLines(int before, int lines)
{
    PegThing* const widget = widgetOf(mCurrent);
    if (!mVisible || widget == nullptr || widget->Type() != TYPE_LIST_WITH_TITLE || lines != before + 1)
        return;
    if (auto* list = dynamic_cast<KestrelListBoxWithTitle*>(widget))
        list->setSystemWindowLines(lines);
}

void DisplayPrivate::clearSWfromDisplayable()
{
    mSystemWindow.changeHands();
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
    gDisplayLog(TRACE, 1220, "setStatusMessage() called with text='%s' and timeout=%d", text.c_str(),
                static_cast<int>(timeout));
    if (mStatusWidget != nullptr) {
        removeFromScreen(mStatusWidget.get());
        mStatusWidget.reset();
    }
    if (text.empty())
        return;
    mStatusWidget = std::make_unique<StatusMessage>(text, timeout);
    gDisplayLog(TRACE, 1229, "Created status widget");
    if (!mVisible)
        return;
    addToScreen(mStatusWidget.get());
    gDisplayLog(TRACE, 1233, "Added status widget to screen");
}

} // namespace DisplayAPI
