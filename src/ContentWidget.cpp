#include "ContentWidget.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayPrivate.h"
#include "toolkit/PegWindow.h"
#include "widgets/SystemWindow.h"

#include <utility>

namespace DisplayAPI {

namespace {

// One row and column more than the panel: observers know these numbers.
constexpr PegRect AREA{0, 0, 240, 128};

} // namespace

ContentWidget::ContentWidget() : mWindow(new PegWindow(FF_NONE)), mSystemWindow(new SystemWindow)
{
    mWindow->Resize(AREA);
    mWindow->Style(mWindow->Style() | FF_BEHIND);
    setEventHandler(this);
}

ContentWidget::~ContentWidget()
{
    delete mSystemWindow;
    delete mWindow;
}

void ContentWidget::setGeometry(const PegRect&) {}

void ContentWidget::show() {}

void ContentWidget::hide() {}

void ContentWidget::showMaximized() {}

void ContentWidget::move(int, int) {}

void ContentWidget::raise() {}

void ContentWidget::activateWindow() {}

int ContentWidget::width() const
{
    return toRect(mWindow->Area()).width();
}

int ContentWidget::height() const
{
    return toRect(mWindow->Area()).height();
}

PegThing* ContentWidget::getPegWidget()
{
    return mWindow;
}

const PegThing* ContentWidget::getConstPegWidget() const
{
    return mWindow;
}

void ContentWidget::setSystemWindowSize(int lines)
{
    mSystemWindow->setSystemWindowSize(lines);
}

void ContentWidget::setSystemWindowText(int line, std::string text)
{
    mSystemWindow->setSystemWindowText(line, std::move(text));
}

void ContentWidget::setSystemWindowTop(int top, bool separator, bool redraw)
{
    mSystemWindow->setSystemWindowTop(top, separator, redraw);
}

void ContentWidget::showTimeInSystemWindow(bool on)
{
    mSystemWindow->showTime(on);
}

void ContentWidget::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    mSystemWindow->setTime(hours, minutes, seconds);
}

void ContentWidget::setTimer(std::string text)
{
    mSystemWindow->setTimer(text);
}

void ContentWidget::stopTimer()
{
    mSystemWindow->stopTimer();
}

SystemWindow* ContentWidget::getSystemWindow()
{
    return mSystemWindow;
}

void ContentWidget::setEventHandler(GUIEventIfc* handler)
{
    mSystemWindow->setEventHandler(handler);
}

void ContentWidget::OnChange(PegMessage, std::string text)
{
    setSystemWindowAsPopup(false);
    setSystemWindowText(0, std::move(text));
    setSystemWindowAsPopup(true);
    if (mParent != nullptr)
        mParent->displayChanged();
}

void ContentWidget::OnLeft(PegMessage) {}

void ContentWidget::OnRight(PegMessage) {}

void ContentWidget::OnUp(PegMessage) {}

void ContentWidget::OnDown(PegMessage) {}

void ContentWidget::OnOK(PegMessage) {}

void ContentWidget::showLine(bool on)
{
    mSystemWindow->showLine(on);
}

std::string ContentWidget::getSystemWindowText(int line) const
{
    return mSystemWindow->getSystemWindowText(line);
}

void ContentWidget::setSystemWindowAsPopup(bool popup)
{
    mSystemWindow->setAsPopup(popup);
}

} // namespace DisplayAPI
