#include "DisplayAPI/Widget.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayEventFilter.h"
#include "GuiThread.h"
#include "Log.h"
#include "RequestHook.h"
#include "RequestQueue.h"
#include "WidgetSync.h"
#include "toolkit/PegThing.h"
#include "utilities/Threadable.h"

#include <atomic>
#include <cstdint>

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
    Answer answer;
    int logLine;
    PlainText lost;
};

constexpr Operation POST{Place::TAIL, Answer::AWAITED, 247,
                         "Widget::postEvent() no more PegMessage objects in the pool, this one will be lost!"};
constexpr Operation POST_TOP{Place::HEAD, Answer::AWAITED, 342,
                             "Widget::postTopEvent() no more PegMessage objects in the pool, this one will be lost!"};
constexpr Operation POST_ASYNC{
    Place::TAIL, Answer::NOT_AWAITED, 427,
    "Widget::postEventAsync() no more PegMessage objects in the pool, this one will be lost!"};

GuiRequestEvent* orEmptyRequest(Widget& widget, GuiRequestEvent* request)
{
    return request != nullptr ? request : new GuiRequestEvent(&widget, NO_CODE);
}

/// A message around `request`; null, with the request gone, when there is no record for one.
PegMessage* wrap(GuiRequestEvent* request, const Operation& operation)
{
    PegMessage* message = takeMessage();
    if (message == nullptr) {
        gLog(LOST, operation.logLine, operation.lost);
        tellLost();
        delete request;
        return nullptr;
    }
    message->wType = PM_WIDGET_REQUEST;
    message->iData = 0;
    message->pData = request;
    return message;
}

/// Addresses the message to the filter that is installed now, which need not be the one that the poster has seen.
/// Returns false where none is. Under the queue's mutex.
bool addressToFilter(PegMessage& message)
{
    DisplayEventFilter* const filter = DisplayEventFilter::getFilterPointer();
    message.pTarget = filter;
    message.pSource = filter;
    return filter != nullptr;
}

void carryOutHere(Widget& widget, GuiRequestEvent* request)
{
    widget.processGuiRequest(*request);
    delete request;
}

/// What becomes of a request for which there is no filter or no widget any more. `number` is what it goes by where it
/// has been told as queued, else 0.
void handleRefused(const Post& post, Widget& widget, GuiRequestEvent* request, std::int32_t number)
{
    if (post.hasEnded()) {
        tellPurged(number);
        completeUnserved(request);
    } else {
        const RequestHandling handling(number);
        carryOutHere(widget, request);
    }
}

/// Queues the request for the installed filter, with `condition` as its wait condition unless that is null. Returns
/// false when there is nothing to wait for: without a filter the request has been carried out here, without a message
/// record it is lost, without its widget it has been completed.
bool handOver(const Post& post, Widget& widget, GuiRequestEvent* request, const Operation& operation, Wait* condition)
{
    if (DisplayEventFilter::getFilterPointer() == nullptr || gtPegMainQueue == nullptr) {
        handleRefused(post, widget, request, 0);
        return false;
    }
    PegMessage* const message = wrap(request, operation);
    if (message == nullptr)
        return false;
    if (condition != nullptr)
        request->setWaitCondition(condition);
    message->iData = tellQueued(post.facade(), request->getType(), operation.answer == Answer::AWAITED);
    const auto admit = [&] {
        const bool admitted = !post.hasEnded() && addressToFilter(*message);
        if (admitted)
            Widget::Sync::entered(*request);
        return admitted;
    };
    if (enqueue(message, operation.place, operation.answer, admit))
        return true;
    const std::int32_t number = message->iData;
    message->pData = nullptr;
    giveBackMessage(message);
    handleRefused(post, widget, request, number);
    return false;
}

void postAndWait(Widget& widget, GuiRequestEvent* request, const Operation& operation)
{
    request = orEmptyRequest(widget, request);
    const int code = request->getType();
    Post post(widget, code);
    Wait* const callers = request->waitCondition();
    Wait own;
    if (!handOver(post, widget, request, operation, callers == nullptr ? &own : nullptr))
        return;
    // Whoever waits on a condition of his own does not keep others from posting meanwhile.
    if (callers != nullptr)
        post.giveBackLock();
    const RequestWait waiting(post.facade(), code);
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

void purge(const OwnRequest& matches)
{
    removeMessages(matches, [](PegMessage* message) {
        completeUnserved(takeRequest(*message));
        giveBackMessage(message);
    });
}

} // namespace

GuiRequestEvent* takeRequest(PegMessage& message)
{
    auto* const request = static_cast<GuiRequestEvent*>(message.pData);
    message.pData = nullptr;
    tellPurged(message.iData);
    Widget::Sync::left(*request);
    return request;
}

void completeUnserved(GuiRequestEvent* request)
{
    request->signalComplete();
    delete request;
}

Widget::Widget() : name("Widget"), mSync(new Sync) {}

Widget::Widget(const Widget& other) : name("Widget"), mSync(new Sync(*other.mSync)) {}

Widget& Widget::operator=(const Widget& other)
{
    if (this == &other)
        return *this;
    mSync->letGo();
    mSync = new Sync(*other.mSync);
    return *this;
}

Widget::~Widget()
{
    // Looks into the queue only where a request of this widget may still get there, or is there.
    if (mSync->isHeldByOthers() || mSync->hasQueued()) {
        mSync->end();
        purge({this, nullptr});
    }
    mSync->letGo();
}

bool Widget::isGuiThread()
{
    const unsigned int gui = WidgetImpl::m_GuiThreadId.load(std::memory_order_relaxed);
    return gui == 0 || gui == Threadable::currentThreadId();
}

bool isRecordedGuiThread()
{
    return WidgetImpl::m_GuiThreadId != 0 && Widget::isGuiThread();
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
    postAndWait(*this, request, POST);
}

void Widget::postTopEvent(GuiRequestEvent* request)
{
    postAndWait(*this, request, POST_TOP);
}

void Widget::postEventAsync(GuiRequestEvent* request)
{
    request = orEmptyRequest(*this, request);
    const Post post(*this, request->getType());
    handOver(post, *this, request, POST_ASYNC, nullptr);
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
    GuiRequestEvent* const request = takeRequest(*message);
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
