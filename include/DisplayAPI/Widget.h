#pragma once

#include "DisplayAPI/Export.h"

#include <set>
#include <string>

class PegThing;
namespace DisplayAPI {

class GuiRequestEvent;

/// Base of every facade: carries a call from any thread to the GUI thread.
///
/// Threads: safe from any thread unless an operation says otherwise. Posts from one thread on one widget keep their
/// order, but for postTopEvent(). A waiting call has no time limit: it returns when the GUI thread has carried it out.
/// What does not post runs on the calling thread, at once.
/// Posting is for other threads than the GUI thread, which would wait for itself: there use postEventHelper().
/// Locks: a waiting call holds the widget's request lock meanwhile, so further posts on the same widget wait as well.
/// Never wait for another thread on the GUI thread while that thread makes a waiting call.
/// Ownership: a posted record belongs to the library. Copies share the source's request lock and Wait object, and both
/// delete them: do not copy widgets.
/// Without an installed event filter a post is carried out at once on the calling thread.
class DISPLAYAPI_EXPORT Widget {
public:
    struct Sync;

    Widget();
    Widget(const Widget& other);
    Widget& operator=(const Widget& other);

    /// Removes what is still queued for this widget and lets everybody go on who waits for it: for a request, which is
    /// not carried out then, or behind another call for his turn to post. A call that has not begun by then must not
    /// begin. A class with a private side destroys it by a request that its destructor waits for.
    virtual ~Widget();

    /// Carries out one request and signals its completion. GUI thread only.
    virtual void processGuiRequest(GuiRequestEvent& request) = 0;

    /// Whether the caller is the GUI thread; true on every thread until one has been recorded.
    static bool isGuiThread();

    /// Records the calling thread, or the thread with the given id, as the GUI thread; 0 records none.
    static void setGuiThreadId();
    static void setGuiThreadId(unsigned int id);

    /// Queues the request and waits until it has been carried out. Null queues a request with code -1.
    void postEvent(GuiRequestEvent* request);
    void postEvent(int code);

    /// As postEvent, but ahead of everything that is queued.
    void postTopEvent(GuiRequestEvent* request);
    void postTopEvent(int code);

    /// Queues the request and returns at once.
    void postEventAsync(GuiRequestEvent* request);
    void postEventAsync(int code);

    /// Carries the request out at once on the GUI thread, where the record stays the caller's and must not be null;
    /// posts it elsewhere, waiting unless `async`.
    void postEventHelper(bool async, GuiRequestEvent* request);

    /// Wakes the caller that waits for the request, if one does. Ends processGuiRequest(), on whatever thread that
    /// runs; the widget may have gone by then.
    static void signalComplete(GuiRequestEvent& request);

    /// Takes the first queued request of this widget with the given code (any of `codes`; null means every code) out of
    /// the queue. The caller owns it; whoever waits for it goes on waiting. Null when there is none.
    GuiRequestEvent* dequeueOwnMessage(int code);
    GuiRequestEvent* dequeueOwnMessage(std::set<int>* codes);

    /// Removes every queued request of this widget with the given code (any of `codes`; null means every code), wakes
    /// those who wait for it and deletes it.
    void purgeOwnMessage(int code);
    void purgeOwnMessage(std::set<int>* codes);

protected:
    std::string name;

private:
    Sync* mSync; ///< shared with the posts that have begun
};

/// Tells `thing`, which must not be null, through the toolkit's queue that the focus has moved, if its type wants to
/// know. GUI thread only; does nothing while the toolkit is not running.
DISPLAYAPI_EXPORT void focusChanged(PegThing* thing);

} // namespace DisplayAPI
