#include "host/widgets/idle/IdleScreen.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Strip.h"
#include "host/widgets/popup/PopupFrame.h"

#include <utility>

namespace host {

namespace {

constexpr std::int32_t TURN = 1;
constexpr int TURN_MS = 4000;

} // namespace

IdleScreen::IdleScreen() : mClock([this] { ticked(); }), mEar(*this), mColumn(new CommandColumn)
{
    mMenu.setField(mColumn);
    mMenu.setMessageTarget(&mEar);
    mColumn->setMessageTarget(&mEar);
    const auto [width, height] = runningPanel();
    Resize(rectAt(0, 0, width, height));
}

IdleScreen::~IdleScreen() = default;

void IdleScreen::setContents(IdleContents contents)
{
    if (contents == mContents)
        return;
    const std::size_t before = idleTurns(state());
    mContents = std::move(contents);
    keepMessage(before);
    scheduleTurns();
    changed();
}

void IdleScreen::setLogo(std::string path)
{
    mLogo.setPath(std::move(path));
    changed();
}

void IdleScreen::addMessage(PegString message)
{
    const std::size_t turns = idleTurns(state());
    mTurn = turns > 0 ? mTurn % turns : 0;
    mMessages.push_back(std::move(message));
    scheduleTurns();
    if (turns == 0)
        changed();
}

/// Addresses come and go in front of the messages; the one on screen stays there.
void IdleScreen::keepMessage(std::size_t turnsBefore)
{
    if (turnsBefore == 0)
        return;
    const std::size_t addresses = turnsBefore - mMessages.size();
    mTurn %= turnsBefore;
    if (mTurn >= addresses)
        mTurn += idleTurns(state()) - turnsBefore;
}

void IdleScreen::clearMessages()
{
    if (mMessages.empty())
        return;
    mMessages.clear();
    mTurn = 0;
    scheduleTurns();
    changed();
}

void IdleScreen::setStatusLines(int lines)
{
    if (mLines.setSize(lines))
        changed();
}

void IdleScreen::setStatusText(int line, std::string text)
{
    if (mLines.setText(line, std::move(text)) && line < mLines.size())
        changed();
}

void IdleScreen::addCommand(PegString text)
{
    mColumn->insert(mColumn->count(), {.text = std::move(text)});
    mMenu.fitField();
    if (isMenuOpen())
        tell(PM_CURRENT_CHANGED, mColumn->current());
}

void IdleScreen::setCommandText(int command, PegString text)
{
    mColumn->setText(command, std::move(text));
    if (isMenuOpen())
        tell(PM_CURRENT_CHANGED, mColumn->current());
}

void IdleScreen::clearCommands()
{
    mColumn->clear();
    mDefaultCommand = 0;
    closeMenu();
}

IdleState IdleScreen::state() const
{
    return {mContents, mLines, mLogo, mMessages, mTurn, mClock.date(hasTwoLines()), mClock.time()};
}

std::vector<IdlePart> IdleScreen::parts() const
{
    std::vector<IdlePart> all = idleParts(Area(), state());
    if (isMenuOpen())
        std::erase_if(
            all, [bar = idleBar(Area())](const IdlePart& part) { return hasTwoLines() || part.area.top > bar.bottom; });
    return all;
}

int IdleScreen::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_KEY: key(message.iData); break;
    case PM_TIMER: nextMessage(); break;
    default: return PegWindow::Message(message);
    }
    return 0;
}

void IdleScreen::key(int key)
{
    if (isMenuOpen())
        mMenu.Message({.wType = PM_KEY, .iData = key});
    else if ((key == PK_OK || key == PK_DOWN) && mColumn->count() > 0)
        openMenu();
    else
        tell(PM_KEY, key);
}

void IdleScreen::openMenu()
{
    mColumn->setCurrent(0);
    mColumn->setCurrent(mDefaultCommand);
    Add(&mMenu, false);
    Invalidate();
    tell(PM_CURRENT_CHANGED, mColumn->current());
}

void IdleScreen::closeMenu()
{
    if (!isMenuOpen())
        return;
    Remove(&mMenu, false);
    Invalidate();
    tell(PM_CURRENT_CHANGED, -1);
}

void IdleScreen::menuTells(const PegMessage& message)
{
    if (message.wType == PM_KEY && message.iData == PK_LEFT)
        return closeMenu();
    if (message.wType == PM_CLICKED) {
        Remove(&mMenu, false);
        Invalidate();
    }
    tell(message.wType, message.iData);
}

void IdleScreen::tell(std::uint16_t type, int data)
{
    if (mTarget != nullptr)
        mTarget->Message({.wType = type, .iData = data, .pTarget = mTarget, .pSource = this});
}

void IdleScreen::changed()
{
    Invalidate();
    tell(PM_CURRENT_CHANGED, -1);
}

void IdleScreen::ticked()
{
    PegString date = mClock.date(hasTwoLines());
    PegString time = mClock.time();
    if (date == mDate && time == mTime)
        return;
    const bool hasMoved = date.length() != mDate.length() || time.length() != mTime.length();
    const bool isOtherDate = !(date == mDate);
    mDate = std::move(date);
    mTime = std::move(time);
    if (hasMoved)
        Invalidate(idleBar(Area()));
    invalidate(IdleKind::TIME);
    if (isOtherDate)
        invalidate(IdleKind::DATE);
    tell(PM_CURRENT_CHANGED, -1);
}

void IdleScreen::nextMessage()
{
    ++mTurn;
    for (const IdleKind kind : {IdleKind::SYSTEM_MESSAGE, IdleKind::FORWARDING, IdleKind::SERVER_FORWARDING})
        invalidate(kind);
    tell(PM_CURRENT_CHANGED, -1);
}

void IdleScreen::scheduleTurns()
{
    const bool takesTurns = StatusIs(PSF_VISIBLE) && idleTurns(state()) > 1;
    if (std::exchange(mTakesTurns, takesTurns) == takesTurns)
        return;
    if (takesTurns)
        SetTimer(TURN, TURN_MS, true);
    else
        KillTimer(TURN);
}

void IdleScreen::invalidate(IdleKind kind)
{
    for (const IdlePart& part : parts())
        if (part.kind == kind)
            Invalidate(part.area);
}

void IdleScreen::Resize(const PegRect& area)
{
    PegWindow::Resize(area);
    const int bar = hasTwoLines() ? 0 : heightOf(idleBar(area));
    mColumn->setMostRows(PopupBox::roomForField(heightOf(area) - bar) / CommandColumn::lineHeight());
    mMenu.setFreeAbove(bar);
}

void IdleScreen::VisibilityChanged()
{
    const bool isVisible = StatusIs(PSF_VISIBLE);
    if (isVisible) {
        mDate = mClock.date(hasTwoLines());
        mTime = mClock.time();
    }
    mClock.run(isVisible);
    scheduleTurns();
}

void IdleScreen::Draw(PegPainter& painter)
{
    const PegRect bar = idleBar(Area());
    painter.fill(Area(), Level::BARE);
    painter.fill(rectAt(Area().left, bar.top, widthOf(Area()), heightOf(bar) - 2), Level::LIGHT);
    painter.fill(rectAt(Area().left, bar.bottom - 1, widthOf(Area()), 1), Level::DARK);
    for (const IdlePart& part : parts())
        if (!painter.isClippedOut(part.area))
            drawPart(painter, part);
}

void IdleScreen::drawPart(PegPainter& painter, const IdlePart& part)
{
    if (part.picture != nullptr)
        painter.picture(*part.picture, part.area);
    if (part.kind == IdleKind::SYSTEM_MESSAGE && !hasTwoLines())
        painter.fill(rectAt(part.area.left, part.area.top, widthOf(part.area), 1), Level::MIDDLE);
    Strip strip(part.area);
    if (part.icon != nullptr)
        painter.icon(*part.icon, strip.fromStart(IDLE_ICON_WIDTH), Level::DARK);
    if (!part.text.empty())
        painter.text(strip.rest(), part.text, part.look);
}

} // namespace host
