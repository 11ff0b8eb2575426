#include "apps/deskphone/StatusLines.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/WallClock.h"

namespace deskphone {

using host::WallClock;
namespace kit = DisplayAPI::kit;

namespace {

enum Line { OWN_NAME = 0, PARTY = 1 };

/// The small panel's status line is taken down by a line of blanks.
const std::string BLANK_LINE(24, ' ');

} // namespace

StatusLines::StatusLines(Telephone& telephone, kit::StatusLines& lines)
    : mTelephone(telephone), mLines(lines), mOwnName(&telephone.languages(), "Status.own.name")
{
    telephone.addLanguageListener([this] { showOwnName(); });
}

void StatusLines::open()
{
    const std::tm now = WallClock::local(WallClock::now());
    mTelephone.display().setTimeInSystemWindow(now.tm_hour, now.tm_min, now.tm_sec);
    mTelephone.display().showTimeInSystemWindow(!isSmallPanel());
    showOwnName();
}

void StatusLines::setVisible(bool visible)
{
    if (mIsVisible.exchange(visible) != visible && !isSmallPanel())
        setCount(mCount);
}

void StatusLines::callBegins(const std::string& party)
{
    DisplayAPI::Display& display = mTelephone.display();
    mLines.setText(isSmallPanel() ? OWN_NAME : PARTY, party);
    display.setTimer("00:00:00");
    setCount(isSmallPanel() ? 1 : 2);
}

void StatusLines::callEnds()
{
    DisplayAPI::Display& display = mTelephone.display();
    display.stopTimer();
    if (isSmallPanel())
        mLines.setText(OWN_NAME, BLANK_LINE);
    else
        setCount(1);
}

void StatusLines::showOwnName()
{
    if (isSmallPanel())
        return;
    mLines.setText(OWN_NAME, mOwnName.get());
    setCount(1);
}

void StatusLines::setCount(int count)
{
    mCount = count;
    mLines.setSize(mIsVisible ? count : 0);
}

} // namespace deskphone
