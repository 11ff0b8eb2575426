#include "DisplayEventFilter.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "RequestQueue.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegScreen.h"

namespace DisplayAPI {

namespace {

void carryOut(DisplayRequestEvent* request)
{
    request->requesterDisplay()->processDisplayRequest(request);
    delete request;
}

void repaintPending()
{
    if (gpPresent == nullptr || gpPresent->Pending() == nullptr)
        return;
    PegThing::mpScreen->Invalidate(gpPresent->Pending());
    PegThing::mpScreen->Update();
}

void carryOut(GuiRequestEvent* request)
{
    request->requesterWidget()->processGuiRequest(*request);
    repaintPending();
    delete request;
}

} // namespace

std::atomic<DisplayEventFilter*> DisplayEventFilter::mpFilter{nullptr};

DisplayEventFilter::DisplayEventFilter(bool install) : PegThing(0, FF_NONE)
{
    Resize({0, 0, 1, 1});
    if (install)
        mpFilter.store(this, std::memory_order_release);
}

DisplayEventFilter::~DisplayEventFilter()
{
    uninstall();
}

void DisplayEventFilter::uninstall()
{
    DisplayEventFilter* self = this;
    if (gtPegMainQueue == nullptr) {
        mpFilter.compare_exchange_strong(self, nullptr);
        return;
    }
    // Under the queue's mutex, so that no post for this filter comes later.
    MainQueueLock lock(*gtPegMainQueue);
    mpFilter.compare_exchange_strong(self, nullptr);
}

int DisplayEventFilter::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_DISPLAY_REQUEST: carryOut(static_cast<DisplayRequestEvent*>(message.pData)); return 0;
    case PM_WIDGET_REQUEST: carryOut(static_cast<GuiRequestEvent*>(message.pData)); return 0;
    default: return PegThing::Message(message);
    }
}

std::string DisplayEventFilter::eventInfo(const PegMessage*) const
{
    return {};
}

std::string DisplayEventFilter::typeToString(int) const
{
    return {};
}

} // namespace DisplayAPI
