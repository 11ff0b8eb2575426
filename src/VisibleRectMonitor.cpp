#include "VisibleRectMonitor.h"

#include "StackEntry.h"

#include <algorithm>

namespace DisplayAPI {

void VisibleRectMonitor::clear()
{
    mRects.clear();
    mDisplayables.clear();
}

void VisibleRectMonitor::update(Displayable& displayable)
{
    const PegThing* const widget = widgetOf(&displayable);
    if (widget == nullptr)
        return;
    mRects.push_back(rectOf(*widget));
    mDisplayables.push_back(&displayable);
}

void VisibleRectMonitor::remove(Displayable& displayable)
{
    const auto entry = std::find(mDisplayables.begin(), mDisplayables.end(), &displayable);
    if (entry == mDisplayables.end())
        return;
    mRects.erase(mRects.begin() + (entry - mDisplayables.begin()));
    mDisplayables.erase(entry);
}

} // namespace DisplayAPI
