#include "host/widgets/desktop/DesktopWidget.h"

#include "host/lcd/Geometry.h"
#include "utilities/ICC.h"

#include <utility>

namespace host {

namespace {

enum Timer : std::int32_t { CLOCK = 1, PICTURE = 2, LEAVING = 3 };

bool isProgrammable(int key)
{
    return key >= PK_FPK1 && key <= PK_FPK_LAST;
}

/// The volume keys and the hook are not the desktop's.
bool isTaken(int key)
{
    const bool isDigit = key >= PK_0 && key <= PK_9;
    const bool isWay = key >= PK_UP && key <= PK_OK;
    return isDigit || isWay || key == PK_STAR || key == PK_HASH || isProgrammable(key);
}

} // namespace

DesktopWidget::DesktopWidget(const PegRect& area, int keys)
{
    mState.keys.resize(static_cast<std::size_t>(keys));
    Resize(area);
}

int DesktopWidget::Message(const PegMessage& message)
{
    if (message.wType == PM_KEY && (mScreensaver.isOn() || isTaken(message.iData))) {
        key(message.iData);
    } else if (message.wType == PM_TIMER) {
        timer(message.iData);
    } else {
        return PegWindow::Message(message);
    }
    return 0;
}

void DesktopWidget::timer(int id)
{
    if (id == CLOCK) {
        clockChanged();
    } else if (id == PICTURE) {
        mScreensaver.next();
        screensaverChanged();
    } else if (id == LEAVING && mListener != nullptr) {
        mListener->desktopHidden();
    }
}

/// The key that ends the screensaver is used up.
void DesktopWidget::key(int key)
{
    if (mScreensaver.isOn())
        return wake();
    const auto number = static_cast<std::size_t>(key - PK_FPK1);
    if (isProgrammable(key) && (number >= mState.keys.size() || !mState.label(number).enabled))
        return;
    if (mListener != nullptr)
        mListener->desktopKey(key);
}

void DesktopWidget::wake()
{
    if (mListener != nullptr)
        mListener->desktopWoken();
    stopScreensaver();
}

void DesktopWidget::Draw(PegPainter& painter)
{
    if (!mScreensaver.isOn())
        return drawDesktop(painter, Area(), mState);
    painter.fill(Area(), Level::BARE);
    painter.picture(mScreensaver.picture(widthOf(Area()), heightOf(Area())), Area());
}

/// What comes to the screen is painted whole. The display takes a screen out and puts it back when what lay above has
/// gone: whether it has left shows on the loop's next turn.
void DesktopWidget::VisibilityChanged()
{
    PegWindow::VisibilityChanged();
    readClock();
    schedule();
    if (StatusIs(PSF_VISIBLE))
        KillTimer(LEAVING);
    else
        SetTimer(LEAVING, 0, false);
}

void DesktopWidget::tellChanged()
{
    if (StatusIs(PSF_VISIBLE) && mListener != nullptr)
        mListener->desktopChanged();
}

/// Whether it is another one. Nothing of it is seen while the screensaver is.
template <typename Field>
bool DesktopWidget::set(Field& field, Field value, const PegRect& part)
{
    if (field == value)
        return false;
    field = std::move(value);
    if (!mScreensaver.isOn())
        Invalidate(part);
    return !mScreensaver.isOn();
}

template <typename Field>
void DesktopWidget::change(Field& field, Field value, const PegRect& part)
{
    if (set(field, std::move(value), part))
        tellChanged();
}

void DesktopWidget::setMode(PegString mode, PegString detail)
{
    const bool isOther = set(mState.mode, std::move(mode), parts().mode);
    if (set(mState.modeDetail, std::move(detail), parts().mode) || isOther)
        tellChanged();
}

void DesktopWidget::setIcon(DesktopIcon icon, bool on)
{
    change(mState.icons[static_cast<std::size_t>(icon)], on, parts().icons);
}

void DesktopWidget::setPostTimeIcon(int icon)
{
    change(mState.postTimeIcon, icon, parts().time);
}

void DesktopWidget::setExtension(PegString text)
{
    change(mState.extension, std::move(text), parts().extension);
}

void DesktopWidget::setArrow(bool on)
{
    change(mState.hasArrow, on, parts().extension);
}

void DesktopWidget::setLogo(PegString text)
{
    change(mState.logo, std::move(text), parts().logo);
}

void DesktopWidget::setLabel(int key, bool isShifted, KeyLabel label)
{
    change(mState.keys[static_cast<std::size_t>(key)].levels[isShifted ? 1 : 0], std::move(label), parts().label(key));
}

void DesktopWidget::setLit(int key, bool on)
{
    change(mState.keys[static_cast<std::size_t>(key)].isLit, on, parts().label(key));
}

void DesktopWidget::setShifted(bool on)
{
    change(mState.isShifted, on, parts().labels);
}

void DesktopWidget::setDayNames(DayNames names)
{
    mDayNames = std::move(names);
    clockChanged();
}

void DesktopWidget::applicationChanged()
{
    readClock();
    Invalidate();
    tellChanged();
}

/// Whether it shows something else.
bool DesktopWidget::readClock()
{
    const auto day = mClock.weekday();
    const bool isOtherTime = set(mState.time, ICC::fromUTF8toUNICODE(mClock.time()), parts().time);
    const bool isOtherDate = set(mState.date, mClock.date(), parts().date);
    const bool isOtherDay = set(mState.day, day ? mDayNames[day->iso_encoding() - 1] : std::string(), parts().date);
    return isOtherTime || isOtherDate || isOtherDay;
}

/// The picture keeps its turn.
void DesktopWidget::clockChanged()
{
    scheduleClock();
    if (readClock())
        tellChanged();
}

/// Nothing runs for a screen that nobody sees.
void DesktopWidget::scheduleClock()
{
    if (StatusIs(PSF_VISIBLE) && mClock.runs() && !mScreensaver.isOn())
        SetTimer(CLOCK, mClock.untilNextText(), false);
    else
        KillTimer(CLOCK);
}

void DesktopWidget::schedule()
{
    scheduleClock();
    if (StatusIs(PSF_VISIBLE) && mScreensaver.turns())
        SetTimer(PICTURE, Screensaver::TURN, false);
    else
        KillTimer(PICTURE);
}

void DesktopWidget::startScreensaver()
{
    if (mScreensaver.isOn())
        return;
    mScreensaver.start();
    screensaverChanged();
}

void DesktopWidget::stopScreensaver()
{
    if (!mScreensaver.isOn())
        return;
    mScreensaver.stop();
    readClock();
    screensaverChanged();
}

void DesktopWidget::setPictures(const std::list<std::string>& paths)
{
    mScreensaver.setPictures(paths);
    if (mScreensaver.isOn())
        screensaverChanged();
}

void DesktopWidget::screensaverChanged()
{
    schedule();
    Invalidate();
    tellChanged();
}

} // namespace host
