#include "host/widgets/popup/PopupStatus.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/popup/PopupFrame.h"
#include "presentation/PRESCPresentationManager.h"

namespace host {

PopupStatus::PopupStatus() : PegWindow(FF_NONE | FF_BEHIND), mStrip(new StatusStrip([this] { place(); }))
{
    Add(mStrip, false);
}

void PopupStatus::show(bool on)
{
    mIsWanted = on;
    place();
}

void PopupStatus::place()
{
    const PegRect area = rectAt(0, 0, runningPanel().width, mStrip->height());
    const bool isShown = Parent() != nullptr;
    const bool shallShow = mIsWanted && !isEmpty(area);
    if (isShown && !shallShow)
        Parent()->Remove(this, true);
    Resize(area);
    mStrip->Resize(area);
    if (shallShow && !isShown)
        gpPresent->Add(this, false);
    Invalidate();
}

} // namespace host
