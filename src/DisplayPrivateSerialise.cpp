#include "DisplayPrivate.h"

#include "DisplayAPI/ScreenText.h"
#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "StackWalk.h"

namespace DisplayAPI {

namespace {

using DisplayAPIUtils::Rect;
using Rects = std::vector<Rect>;

void logRect(int line, const char* text, const Rect& rect)
{
    gDisplayLog(TRACE, line, text, rect.left(), rect.top(), rect.right(), rect.bottom());
}

/// Adds what `requested` shows of `visible`: all of it once where one rectangle contains it, otherwise its share of
/// each.
void addRequestedParts(const Rect& visible, const Rects& requested, Rects& parts)
{
    for (const Rect& rect : requested) {
        if (contains(rect, visible)) {
            parts.push_back(visible);
            return logRect(930, "serialiseByRect() adding to newRects: (%d,%d),(%d,%d)", visible);
        }
        if (!visible.Overlap(rect))
            continue;
        Rect share = visible;
        share &= rect;
        parts.push_back(share);
        logRect(938, "serialiseByRect() OVERLAP adding to newRects: (%d,%d),(%d,%d)", share);
    }
}

Rects requestedParts(const Rects& visible, const Rects& requested)
{
    Rects parts;
    for (const Rect& rect : visible)
        addRequestedParts(rect, requested, parts);
    return parts;
}

} // namespace

void DisplayPrivate::updateVisibleRectMonitor()
{
    mVisibleRectMonitor.clear();
    for (Displayable* displayable : mItemList)
        mVisibleRectMonitor.update(*displayable);
}

std::vector<Rect>* DisplayPrivate::getDisplayedRects()
{
    updateVisibleRectMonitor();
    mDisplayedRects = mVisibleRectMonitor.getVisibleRects();
    return &mDisplayedRects;
}

std::vector<Rects> DisplayPrivate::findVisibleRects() const
{
    std::vector<Rects> visible(mItemList.size());
    Rects above;
    for (std::size_t i = mItemList.size(); i-- > 0;) {
        const PegThing* const widget = widgetOf(mItemList[i]);
        if (widget == nullptr)
            continue;
        visible[i] = above.empty() ? Rects{rectOf(*widget)} : rectOf(*widget).subtract(above);
        above.insert(above.begin(), rectOf(*widget));
    }
    return visible;
}

std::string DisplayPrivate::serialise()
{
    updateVisibleRectMonitor();
    std::string text;
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        if (DisplayablePrivateIfc* side = entry->getPrivateImpl())
            text += side->serialise();
    }
    return screen::toAscii(text);
}

std::string DisplayPrivate::serialiseByRect(const Rects& rects, bool withSystemWindow)
{
    gDisplayLog(TRACE, 960, "serialiseByRect() rects.size() = %d, doSW = %d", static_cast<int>(rects.size()),
                static_cast<int>(withSystemWindow));
    updateVisibleRectMonitor();
    const std::vector<Rects> visible = findVisibleRects();
    const DisplayEventIfc* const observer = displayChangeListener();
    gDisplayLog(TRACE, 964, "serialiseByRect() mDisplayChangeListener = %p", address(observer));
    std::string text;
    if (observer != nullptr)
        text = serialiseStack(visible, rects);
    text = mSystemWindow.addTo(text, withSystemWindow);
    gDisplayLog(TRACE, 969, "serialiseByRect() returning = \"%s\"", text.c_str());
    return screen::toAscii(text);
}

std::string DisplayPrivate::serialiseStack(const std::vector<Rects>& visible, const Rects& requested)
{
    gDisplayLog(TRACE, 975, "serialiseByRect() mItemList.size() = %d", static_cast<int>(mItemList.size()));
    std::string text;
    StackWalk walk(mItemList, mWalks);
    for (Displayable* displayable : walk) {
        const Rects parts = requestedParts(visible[walk.position()], requested);
        gDisplayLog(TRACE, 979, "serialiseByRect() newRects.size() = %d", static_cast<int>(parts.size()));
        DisplayablePrivateIfc* const side = displayable->getPrivateImpl();
        if (side == nullptr)
            continue;
        const std::string entry = side->serialise(parts);
        gDisplayLog(TRACE, 984, "serialiseByRect() mItemList.at(%d) serialised as \"%s\"",
                    static_cast<int>(walk.position()), entry.c_str());
        text += entry;
    }
    return text;
}

} // namespace DisplayAPI
