#include "DisplayEventFilter.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "RequestHook.h"
#include "RequestQueue.h"
#include "WidgetSync.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegScreen.h"

#include <vector>

namespace DisplayAPI {

namespace {

void carryOut(DisplayRequestEvent* request, std::int32_t number)
{
    const RequestRun run(typeid(Display), request->getType(), number);
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

void carryOut(GuiRequestEvent* request, std::int32_t number)
{
    Widget& facade = *request->requesterWidget();
    const RequestRun run(typeid(facade), request->getType(), number);
    Widget::Sync::left(*request);
    facade.processGuiRequest(*request);
    repaintPending();
    delete request;
}

/// Those that posts have gone through or may go through again; the last one is in use. GUI thread only.
std::vector<DisplayEventFilter*>& installedFilters()
{
    // Never destroyed: a static display takes its filter out as late as at process exit.
    static auto* const filters = new std::vector<DisplayEventFilter*>;
    return *filters;
}

/// Lets `heir` carry out the widgets' requests that wait for `filter`. Under the queue's mutexes.
void readdress(const DisplayEventFilter* filter, DisplayEventFilter* heir)
{
    for (PegMessage* message : {gtPegMainQueue->taken, gtPegMainQueue->head})
        for (; message != nullptr; message = message->Next)
            if (message->wType == PM_WIDGET_REQUEST && message->pTarget == filter)
                message->pTarget = message->pSource = heir;
}

} // namespace

std::atomic<DisplayEventFilter*> DisplayEventFilter::mpFilter{nullptr};

DisplayEventFilter::DisplayEventFilter(bool install) : PegThing(0, FF_NONE)
{
    Resize({0, 0, 1, 1});
    if (!install)
        return;
    installedFilters().push_back(this);
    mpFilter.store(this, std::memory_order_release);
}

DisplayEventFilter::~DisplayEventFilter()
{
    uninstall();
}

void DisplayEventFilter::uninstall()
{
    if (std::erase(installedFilters(), this) == 0)
        return;
    DisplayEventFilter* const heir = installedFilters().empty() ? nullptr : installedFilters().back();
    if (gtPegMainQueue == nullptr) {
        mpFilter.store(heir, std::memory_order_release);
        return;
    }
    // Under the queue's mutex, so that no post for this filter comes later.
    const WholeQueueLock lock(*gtPegMainQueue);
    mpFilter.store(heir, std::memory_order_release);
    if (heir != nullptr)
        readdress(this, heir);
}

int DisplayEventFilter::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_DISPLAY_REQUEST: carryOut(static_cast<DisplayRequestEvent*>(message.pData), message.iData); return 0;
    case PM_WIDGET_REQUEST: carryOut(static_cast<GuiRequestEvent*>(message.pData), message.iData); return 0;
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
