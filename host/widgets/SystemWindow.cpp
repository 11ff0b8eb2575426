#include "widgets/SystemWindow.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <cstdio>

using namespace host;

namespace {

struct Look {
    Font font;
    int lineHeight;
    int margin;
    int clockWidth;
};

const Look& look()
{
    static constexpr Look GRAPHIC{Font::TEXT, 18, 6, 60};
    static constexpr Look TWO_LINES{Font::FIXED, 21, 8, 72};
    const auto* application = KestrelApplication::getCurrentApplication();
    return KestrelApplication::getHardwareVariant(application) == 1 ? GRAPHIC : TWO_LINES;
}

PegRect lineArea(const PegRect& window, int line)
{
    return rectAt(window.left + look().margin, window.top + line * look().lineHeight,
                  widthOf(window) - 2 * look().margin, look().lineHeight);
}

std::string clockText(const std::array<int, 3>& time)
{
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time[0], time[1], time[2]);
    return text;
}

bool isLine(int line)
{
    return line >= 0 && line < SystemWindow::MAX_LINES;
}

} // namespace

SystemWindow::SystemWindow() : PegWindow(FF_NONE)
{
    place();
}

SystemWindow::~SystemWindow() = default;

void SystemWindow::Draw(PegPainter& painter)
{
    PegWindow::Draw(painter);
    const PegRect first = lineArea(Area(), 0);
    const std::string right = mTimer.empty() && mTimeShown ? clockText(mTime) : mTimer;
    painter.text(first, ICC::fromUTF8toUNICODE(right), {look().font, Align::RIGHT});
    for (int line = 0; line < mSize; ++line) {
        PegRect cell = lineArea(Area(), line);
        if (line == 0 && !right.empty())
            cell.right = static_cast<std::int16_t>(cell.right - look().clockWidth);
        painter.text(cell, ICC::fromUTF8toUNICODE(mLines[static_cast<std::size_t>(line)]), {look().font});
    }
    if (mSeparator)
        painter.fill({Area().left, Area().top, Area().right, Area().top}, Level::DARK);
}

/// As wide as the panel, as high as its lines.
void SystemWindow::place()
{
    const int width = Lcd::current() != nullptr ? Lcd::current()->width() : 240;
    Resize(rectAt(0, mTop, width, mSize * look().lineHeight));
}

void SystemWindow::setEventHandler(GUIEventIfc* handler)
{
    mHandler = handler;
}

void SystemWindow::setSystemWindowSize(int lines)
{
    mSize = std::clamp(lines, 0, MAX_LINES);
    place();
}

void SystemWindow::setSystemWindowText(int line, const std::string& text)
{
    if (!isLine(line))
        return;
    mLines[static_cast<std::size_t>(line)] = text;
    Invalidate();
}

std::string SystemWindow::getSystemWindowText(int line) const
{
    return isLine(line) ? mLines[static_cast<std::size_t>(line)] : std::string();
}

void SystemWindow::setSystemWindowTop(int top, bool separator, bool redraw)
{
    mTop = top;
    mSeparator = separator;
    place();
    if (redraw && mpScreen != nullptr)
        mpScreen->Update();
}

void SystemWindow::setAsPopup(bool popup)
{
    mPopup = popup;
}

bool SystemWindow::isPopup() const
{
    return mPopup;
}

void SystemWindow::showLine(bool on)
{
    mSeparator = on;
    Invalidate();
}

void SystemWindow::showTime(bool on)
{
    mTimeShown = on;
    Invalidate();
}

void SystemWindow::setTime(int hours, int minutes, int seconds)
{
    mTime = {hours, minutes, seconds};
    Invalidate();
}

void SystemWindow::setTimer(const std::string& text)
{
    mTimer = text;
    Invalidate();
}

void SystemWindow::stopTimer()
{
    mTimer.clear();
    Invalidate();
}
