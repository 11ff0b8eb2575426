#include "apps/deskphone/StatusLines.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/WallClock.h"
#include "kit/OnGuiThread.h"

#include <cstdio>

namespace deskphone {

using host::WallClock;
namespace kit = DisplayAPI::kit;

namespace {

enum Line { OWN_NAME = 0, PARTY = 1 };

/// The small panel's status line is taken down by a line of blanks.
const std::string BLANK_LINE(24, ' ');

/// As the display's timer takes it.
std::string timerText(std::int64_t seconds)
{
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", static_cast<int>(seconds / 3600),
                  static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
    return text;
}

} // namespace

StatusLines::StatusLines(Telephone& telephone, kit::StatusLines& lines) : mTelephone(telephone), mLines(lines) {}

void StatusLines::open()
{
    const std::tm now = WallClock::local(WallClock::now());
    mTelephone.display().setTimeInSystemWindow(now.tm_hour, now.tm_min, now.tm_sec);
    mTelephone.display().showTimeInSystemWindow(!isSmallPanel());
    if (!isSmallPanel())
        setCount(1);
}

void StatusLines::setVisible(bool visible)
{
    if (mIsVisible.exchange(visible) != visible && !isSmallPanel())
        setCount(mCount);
}

void StatusLines::callTo(const std::string& party)
{
    mTelephone.display().stopTimer();
    showParty(party);
}

void StatusLines::talkWith(const std::string& party, std::int64_t seconds)
{
    mTelephone.display().setTimer(timerText(seconds));
    showParty(party);
}

void StatusLines::showParty(const std::string& party)
{
    mLines.setText(isSmallPanel() ? OWN_NAME : PARTY, party);
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

void StatusLines::setOwnName(const std::string& name, const std::string& status)
{
    mOwnName = name;
    mOwnStatus = status;
    if (!isSmallPanel())
        send();
}

void StatusLines::setCount(int count)
{
    mCount = count;
    kit::onGuiThread([this] { send(); });
}

/// The timer of a call takes the room of the state. A screen shows a text with the number of lines that is sent behind.
void StatusLines::send()
{
    if (!isSmallPanel())
        mLines.setText(OWN_NAME, mCount < 2 ? mOwnStatus : mOwnName);
    mLines.setSize(mIsVisible || isSmallPanel() ? mCount.load() : 0);
}

} // namespace deskphone
