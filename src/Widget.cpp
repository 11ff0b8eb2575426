#include "DisplayAPI/Widget.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayEventFilter.h"
#include "Log.h"
#include "RequestQueue.h"
#include "toolkit/PegThing.h"
#include "utilities/Semaphore.h"
#include "utilities/Threadable.h"
#include "utilities/Wait.h"

#include <atomic>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::Widget", "./src/Widget"};
constexpr int NO_CODE = -1;

struct WidgetImpl {
    static std::atomic<unsigned int> m_GuiThreadId;
};

std::atomic<unsigned int> WidgetImpl::m_GuiThreadId{0};

/// Where the post operations differ.
struct Operation {
    Place place;
    int logLine;
    PlainText lost;
};

constexpr Operation POST{Place::TAIL, 247,
                         "Widget::postEvent() no more PegMessage objects in the pool, this one will be lost!"};
constexpr Operation POST_TOP{Place::HEAD, 342,
                             "Widget::postTopEvent() no more PegMessage objects in the pool, this one will be lost!"};
constexpr Operation POST_ASYNC{
    Place::TAIL, 427, "Widget::postEventAsync() no more PegMessage objects in the pool, this one will be lost!"};

/// A permit of a semaphore, given back at the end of the scope or before.
class Permit {
public:
    explicit Permit(Semaphore& semaphore) : mSemaphore(&semaphore) { semaphore.take(-1); }
    ~Permit() { giveBack(); }
    Permit(const Permit&) = delete;
    Permit& operator=(const Permit&) = delete;

    void giveBack()
    {
        if (mSemaphore != nullptr)
            mSemaphore->give();
        mSemaphore = nullptr;
    }

private:
    Semaphore* mSemaphore;
};

GuiRequestEvent* orEmptyRequest(Widget& widget, GuiRequestEvent* request)
{
    return request != nullptr ? request : new GuiRequestEvent(&widget, NO_CODE);
}

/// A message around `request`; null, with the request gone, when there is no record for one.
PegMessage* wrap(GuiRequestEvent* request, DisplayEventFilter* filter, const Operation& operation)
{
    PegMessage* message = takeMessage();
    if (message == nullptr) {
        gLog(LOST, operation.logLine, operation.lost);
        delete request;
        return nullptr;
    }
    message->wType = PM_WIDGET_REQUEST;
    message->iData = 0;
    message->pTarget = filter;
    message->pSource = filter;
    message->pData = request;
    return message;
}

void carryOutHere(Widget& widget, GuiRequestEvent* request)
{
    widget.processGuiRequest(*request);
    delete request;
}

GuiRequestEvent* unwrap(PegMessage& message)
{
    auto* request = static_cast<GuiRequestEvent*>(message.pData);
    message.pData = nullptr;
    return request;
}

/// Queues the request for the installed filter, with `condition` as its wait condition unless that is null. Returns
/// false when there is nothing to wait for: without a filter the request has been carried out here, without a message
/// record it is lost.
bool handOver(Widget& widget, GuiRequestEvent* request, const Operation& operation, Wait* condition)
{
    DisplayEventFilter* const filter = DisplayEventFilter::getFilterPointer();
    if (filter == nullptr || gtPegMainQueue == nullptr) {
        carryOutHere(widget, request);
        return false;
    }
    PegMessage* const message = wrap(request, filter, operation);
    if (message == nullptr)
        return false;
    if (condition != nullptr)
        request->setWaitCondition(condition);
    // A filter that has been taken out meanwhile carries nothing out any more.
    if (enqueue(message, operation.place, [filter] { return filter == DisplayEventFilter::getFilterPointer(); }))
        return true;
    carryOutHere(widget, unwrap(*message));
    giveBackMessage(message);
    return false;
}

void postAndWait(Widget& widget, Semaphore& requestLock, GuiRequestEvent* request, const Operation& operation)
{
    Permit permit(requestLock);
    request = orEmptyRequest(widget, request);
    Wait* const callers = request->waitCondition();
    Wait own;
    if (!handOver(widget, request, operation, callers == nullptr ? &own : nullptr))
        return;
    // Whoever waits on a condition of his own does not keep others from posting meanwhile.
    if (callers != nullptr)
        permit.giveBack();
    (callers != nullptr ? *callers : own).wait();
}

/// Matches the queued requests of one widget whose code is in a set; a null set matches all.
struct OwnRequest {
    Widget* widget;
    const std::set<int>* codes;

    bool operator()(const PegMessage& message) const
    {
        if (message.wType != PM_WIDGET_REQUEST)
            return false;
        auto* request = static_cast<GuiRequestEvent*>(message.pData);
        return request->requesterWidget() == widget && (codes == nullptr || codes->count(request->getType()) != 0);
    }
};

/// Removes the matching requests; returns whether somebody has waited for one of them.
bool purge(const OwnRequest& matches)
{
    bool hasWoken = false;
    removeMessages(matches, [&](PegMessage* message) {
        GuiRequestEvent* request = unwrap(*message);
        hasWoken = hasWoken || request->waitCondition() != nullptr;
        request->signalComplete();
        delete request;
        giveBackMessage(message);
    });
    return hasWoken;
}

} // namespace

Widget::Widget() : name("Widget"), mSync(new Sync{new Semaphore(Semaphore::AVAILABLE, 1, false), new Wait}) {}

Widget::Widget(const Widget& other) : name("Widget"), mSync(new Sync(*other.mSync)) {}

Widget& Widget::operator=(const Widget& other)
{
    if (this == &other)
        return *this;
    delete mSync->wait;
    delete mSync->requestLock;
    delete mSync;
    mSync = new Sync(*other.mSync);
    return *this;
}

Widget::~Widget()
{
    // With an empty queue this costs nothing. Whoever has been woken still has to give the request lock back.
    const bool mayBeQueued = gtPegMainQueue != nullptr && gtPegMainQueue->count != 0;
    if (mayBeQueued && purge({this, nullptr}))
        mSync->requestLock->take(-1);
    delete mSync->wait;
    delete mSync->requestLock;
    delete mSync;
}

bool Widget::isGuiThread()
{
    const unsigned int gui = WidgetImpl::m_GuiThreadId.load(std::memory_order_relaxed);
    return gui == 0 || gui == Threadable::currentThreadId();
}

void Widget::setGuiThreadId()
{
    setGuiThreadId(Threadable::currentThreadId());
}

void Widget::setGuiThreadId(unsigned int id)
{
    WidgetImpl::m_GuiThreadId = id;
}

void Widget::postEvent(GuiRequestEvent* request)
{
    postAndWait(*this, *mSync->requestLock, request, POST);
}

void Widget::postTopEvent(GuiRequestEvent* request)
{
    postAndWait(*this, *mSync->requestLock, request, POST_TOP);
}

void Widget::postEventAsync(GuiRequestEvent* request)
{
    Permit permit(*mSync->requestLock);
    handOver(*this, orEmptyRequest(*this, request), POST_ASYNC, nullptr);
}

void Widget::postEvent(int code)
{
    postEvent(new GuiRequestEvent(this, code));
}

void Widget::postTopEvent(int code)
{
    postTopEvent(new GuiRequestEvent(this, code));
}

void Widget::postEventAsync(int code)
{
    postEventAsync(new GuiRequestEvent(this, code));
}

void Widget::postEventHelper(bool async, GuiRequestEvent* request)
{
    if (isGuiThread())
        processGuiRequest(*request);
    else if (async)
        postEventAsync(request);
    else
        postEvent(request);
}

void Widget::signalComplete(GuiRequestEvent& request)
{
    request.signalComplete();
}

GuiRequestEvent* Widget::dequeueOwnMessage(int code)
{
    std::set<int> codes{code};
    return dequeueOwnMessage(&codes);
}

GuiRequestEvent* Widget::dequeueOwnMessage(std::set<int>* codes)
{
    PegMessage* message = removeFirstMessage(OwnRequest{this, codes});
    if (message == nullptr)
        return nullptr;
    GuiRequestEvent* request = unwrap(*message);
    giveBackMessage(message);
    return request;
}

void Widget::purgeOwnMessage(int code)
{
    std::set<int> codes{code};
    purgeOwnMessage(&codes);
}

void Widget::purgeOwnMessage(std::set<int>* codes)
{
    purge({this, codes});
}

void focusChanged(PegThing* thing)
{
    if (thing->Type() != TYPE_LIST_WP1 || PegThing::mpMessageQueue == nullptr)
        return;
    PegMessage message;
    message.wType = PM_FOCUS_CHANGED;
    message.pTarget = thing;
    PegThing::mpMessageQueue->Push(message);
}

} // namespace DisplayAPI
