#include "host/widgets/tab/TabBar.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Strip.h"

#include <algorithm>
#include <numeric>

namespace host {

namespace {

constexpr int PADDING = 5; ///< of a title within its tab, on either side
constexpr int BACK_WIDTH = 8;
constexpr int ICON_WIDTH = 16;
constexpr int ARROW_WIDTH = 8;
constexpr int RULE = 1;    ///< below the tabs, open under the current one
constexpr int LOWERED = 2; ///< how much lower the others are
constexpr PegRect NOTHING = rectAt(0, 0, 0, 0);

int widthFor(const PegString& title)
{
    const int text = Lcd::current() != nullptr ? Lcd::current()->textWidth(Field::boldFont(), title) : 0;
    return text + 2 * PADDING;
}

} // namespace

int TabBar::height()
{
    return hasTwoLines() ? BIG_LINE_HEIGHT : 20;
}

int TabBar::heightFor(int) const
{
    return height();
}

void TabBar::append(PegString title)
{
    const int width = widthFor(title);
    mTabs.push_back({std::move(title), width});
    changed();
}

void TabBar::remove(int tab)
{
    if (!isTab(tab))
        return;
    mTabs.erase(mTabs.begin() + tab);
    if (mCurrent == tab)
        mCurrent = -1;
    else if (mCurrent > tab)
        --mCurrent;
    changed();
}

void TabBar::setTitle(int tab, PegString title)
{
    if (!isTab(tab))
        return;
    const int width = widthFor(title);
    mTabs[static_cast<std::size_t>(tab)] = {std::move(title), width};
    changed();
}

void TabBar::setCurrent(int tab)
{
    if (!isTab(tab) || tab == mCurrent)
        return;
    mCurrent = tab;
    changed();
}

void TabBar::changed()
{
    keepInSight();
    Invalidate();
}

void TabBar::Resize(const PegRect& area)
{
    Field::Resize(area);
    keepInSight();
}

int TabBar::widthOfTabs(int from, int to) const
{
    return std::accumulate(mTabs.begin() + from, mTabs.begin() + to, 0,
                           [](int sum, const Tab& tab) { return sum + tab.width; });
}

/// What arrow, picture and the arrows of a bar that scrolls leave to the tabs.
int TabBar::room(bool scrolls) const
{
    const int taken = (mLeftGoesBack ? BACK_WIDTH : 0) + (mIcon != nullptr ? ICON_WIDTH : 0);
    return widthOf(Area()) - taken - (scrolls ? 2 * ARROW_WIDTH : 0);
}

bool TabBar::scrolls() const
{
    return widthOfTabs(0, count()) > room(false);
}

/// No further than it has to be, and with no room at the end that tabs before the first one could have.
void TabBar::keepInSight()
{
    if (!scrolls()) {
        mFirst = 0;
        return;
    }
    mFirst = std::clamp(mFirst, 0, std::max(0, mCurrent));
    while (mFirst < mCurrent && widthOfTabs(mFirst, mCurrent + 1) > room(true))
        ++mFirst;
    while (mFirst > 0 && widthOfTabs(mFirst - 1, count()) <= room(true))
        --mFirst;
}

TabBar::Parts TabBar::parts() const
{
    Strip strip(Area());
    Parts where;
    where.back = strip.fromLeft(mLeftGoesBack ? BACK_WIDTH : 0);
    where.icon = strip.fromStart(mIcon != nullptr ? ICON_WIDTH : 0);
    where.before = strip.fromStart(scrolls() ? ARROW_WIDTH : 0);
    where.after = strip.fromEnd(scrolls() ? ARROW_WIDTH : 0);
    for (int tab = mFirst; tab < count() && !isEmpty(strip.rest()); ++tab) {
        const int width = mTabs[static_cast<std::size_t>(tab)].width;
        if (width > widthOf(strip.rest()) && tab > mFirst)
            break;
        where.tabs.push_back(strip.fromStart(std::min(width, widthOf(strip.rest()))));
    }
    return where;
}

PegRect TabBar::tabArea(int tab) const
{
    const std::vector<PegRect> inSight = parts().tabs;
    const auto place = static_cast<std::size_t>(tab - mFirst);
    return tab >= mFirst && place < inSight.size() ? inSight[place] : NOTHING;
}

bool TabBar::key(int key)
{
    const int forward = isReadFromTheRight() ? -1 : 1;
    switch (key) {
    case PK_LEFT:
        if (step(-forward))
            return true;
        if (mLeftGoesBack)
            tell(PM_LEFT, mCurrent);
        return mLeftGoesBack;
    case PK_RIGHT: return step(forward);
    case PK_DOWN:
    case PK_OK: return enter();
    default: return false;
    }
}

bool TabBar::step(int by)
{
    const int tab = mCurrent + by;
    if (mCurrent < 0 || !isTab(tab))
        return false;
    setCurrent(tab);
    tell(PM_CURRENT_CHANGED, tab);
    return true;
}

bool TabBar::enter()
{
    if (mCurrent < 0)
        return false;
    tell(PM_CLICKED, mCurrent);
    return true;
}

void TabBar::Draw(PegPainter& painter)
{
    const PegRect& bar = Area();
    const Parts where = parts();
    painter.fill(bar, Level::BARE);
    painter.fill(rectAt(bar.left, bar.bottom, widthOf(bar), RULE), Level::DARK);
    if (mLeftGoesBack)
        painter.icon(icons::BACK, where.back, Level::DARK);
    if (mIcon != nullptr)
        painter.icon(*mIcon, where.icon, Level::DARK);
    for (std::size_t i = 0; i < where.tabs.size(); ++i)
        drawTab(painter, mFirst + static_cast<int>(i), where.tabs[i]);
    if (scrolls())
        drawArrows(painter, where);
}

void TabBar::drawTab(PegPainter& painter, int tab, const PegRect& area) const
{
    const bool raised = tab == mCurrent;
    const bool inverted = raised && hasFocus();
    const int top = area.top + (raised ? 0 : LOWERED);
    const PegRect outline = rectAt(area.left, top, widthOf(area), area.bottom - RULE - top + 1);
    painter.fill(outline, raised ? Level::DARK : Level::MIDDLE);
    const int foot = raised ? RULE : 0; // open to the page
    painter.fill(rectAt(area.left + 1, top + 1, widthOf(area) - 2, heightOf(outline) - 1 + foot), inverted ? Level::DARK
                                                                                                  : raised
                                                                                                      ? Level::BARE
                                                                                                      : Level::LIGHT);
    for (const int corner : {area.left, area.right})
        painter.fill(rectAt(corner, top, 1, 1), Level::BARE);
    painter.text(rectAt(area.left + 1, top + 1, widthOf(area) - 2, heightOf(outline) - 1), title(tab),
                 {raised ? boldFont() : font(), Align::CENTRE, inverted});
}

void TabBar::drawArrows(PegPainter& painter, const Parts& where) const
{
    const bool fromTheRight = isReadFromTheRight();
    const Icon& back = fromTheRight ? icons::SMALL_ARROW_RIGHT : icons::SMALL_ARROW_LEFT;
    const Icon& forward = fromTheRight ? icons::SMALL_ARROW_LEFT : icons::SMALL_ARROW_RIGHT;
    if (mFirst > 0)
        painter.icon(back, where.before, Level::DARK);
    if (mFirst + static_cast<int>(where.tabs.size()) < count())
        painter.icon(forward, where.after, Level::DARK);
}

} // namespace host
