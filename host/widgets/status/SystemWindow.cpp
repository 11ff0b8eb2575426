#include "widgets/SystemWindow.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/status/StatusTime.h"
#include "host/widgets/status/SystemWindowLook.h"
#include "toolkit/PegScreen.h"
#include "widgets/ApplicationWatch.h"

#include <algorithm>
#include <limits>
#include <utility>

using namespace host;

struct SystemWindow::Impl final : StatusTimeView {
    explicit Impl(SystemWindow& self) : window(self), application(self) {}
    ~Impl() { StatusTime::watch(*this, false); }

    const StatusTime* statusTime() const override { return &time; }
    void statusTimeChanged() override;

    SystemWindowState state() const;
    void place();
    void lineChanged(int line);
    void watch();

    SystemWindow& window;
    ApplicationWatch application;
    StatusTime time;
    StatusLines lines;
    GUIEventIfc* handler = nullptr;
    int top = 0;
    bool popup = false;
    bool separator = false;
};

SystemWindow::SystemWindow() : PegWindow(FF_NONE | FF_BEHIND), mImpl(std::make_unique<Impl>(*this))
{
    Type(TYPE_SYSTEM_WINDOW);
    mImpl->place();
}

SystemWindow::~SystemWindow() = default;

int SystemWindow::Message(const PegMessage& message)
{
    if (message.wType == PM_APPLICATION_CHANGED)
        Invalidate();
    return PegWindow::Message(message);
}

void SystemWindow::Draw(PegPainter& painter)
{
    if (!isEmpty(Area()))
        drawSystemWindow(painter, Area(), mImpl->state(), mImpl->lines, mImpl->time);
}

void SystemWindow::VisibilityChanged()
{
    mImpl->place();
}

/// The time alone keeps line 0 on the screen. A popup is taken down by blank lines, whatever the time.
SystemWindowState SystemWindow::Impl::state() const
{
    constexpr int POPUP_LINES = 2;
    const bool timed = !popup && lines.size() > 0 && !time.text().empty();
    const int used = std::max(lines.used(), timed ? 1 : 0);
    return {popup ? std::min(used, POPUP_LINES) : used, top, popup, separator};
}

void SystemWindow::Impl::place()
{
    const PegRect area = systemWindowArea(state());
    if (area != window.Area())
        window.Resize(area);
    watch();
}

void SystemWindow::Impl::watch()
{
    const bool hasPlace = lines.size() > 0 && (!popup || showsTime(state()));
    StatusTime::watch(*this, hasPlace && window.StatusIs(PSF_VISIBLE));
}

void SystemWindow::Impl::statusTimeChanged()
{
    place();
    lineChanged(0);
}

void SystemWindow::Impl::lineChanged(int line)
{
    if (line < state().lines)
        window.Invalidate();
}

/// This window never changes by itself: there is nothing to report.
void SystemWindow::setEventHandler(GUIEventIfc* handler)
{
    mImpl->handler = handler;
}

GUIEventIfc* SystemWindow::eventHandler() const
{
    return mImpl->handler;
}

void SystemWindow::setSystemWindowSize(int lines)
{
    if (mImpl->lines.setSize(lines))
        mImpl->place();
}

void SystemWindow::setSystemWindowText(int line, std::string text)
{
    if (!mImpl->lines.setText(line, std::move(text)))
        return;
    mImpl->place();
    mImpl->lineChanged(line);
}

std::string SystemWindow::getSystemWindowText(int line) const
{
    return mImpl->lines.text(line);
}

void SystemWindow::setSystemWindowTop(int top, bool separator, bool redraw)
{
    using Coordinate = std::numeric_limits<std::int16_t>;
    mImpl->top = std::clamp<int>(top, Coordinate::min(), Coordinate::max());
    showLine(separator);
    mImpl->place();
    if (redraw && mpScreen != nullptr)
        mpScreen->Update();
}

void SystemWindow::setAsPopup(bool popup)
{
    if (std::exchange(mImpl->popup, popup) == popup)
        return;
    mImpl->place();
    Invalidate();
}

bool SystemWindow::isPopup() const
{
    return mImpl->popup;
}

void SystemWindow::showLine(bool on)
{
    if (std::exchange(mImpl->separator, on) == on)
        return;
    mImpl->place();
    Invalidate();
}

void SystemWindow::showTime(bool on)
{
    mImpl->time.showClock(on);
}

void SystemWindow::setTime(int hours, int minutes, int seconds)
{
    mImpl->time.setClock(hours, minutes, seconds);
}

void SystemWindow::setTimer(const std::string& text)
{
    mImpl->time.setTimer(text);
}

void SystemWindow::stopTimer()
{
    mImpl->time.stopTimer();
}
