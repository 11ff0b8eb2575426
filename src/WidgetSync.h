#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "utilities/Semaphore.h"
#include "utilities/Wait.h"

#include <atomic>
#include <limits>

struct PegMessage;

namespace DisplayAPI {

/// What a widget shares with the posts on it. A post that has begun holds it as well, so the widget may be deleted
/// while callers wait, for the request lock or for completion, or are on their way out.
struct Widget::Sync {
    Sync(Semaphore* lock, Wait* condition) : requestLock(lock), wait(condition) {}
    Sync(const Sync&) = delete;
    Sync& operator=(const Sync&) = delete;

    static Sync& of(Widget& widget) { return *widget.mSync; }

    /// Counts the requests that wait in the queue for their widget, so that only who has some is looked for there.
    static void entered(GuiRequestEvent& request) { change(request, 1); }
    static void left(GuiRequestEvent& request) { change(request, -1); }

    bool hasQueued() const { return mQueued.load(std::memory_order_relaxed) != 0; }

    /// From then on no post of this widget reaches the queue.
    void end() { mQueued.store(ENDED, std::memory_order_relaxed); }
    bool hasEnded() const { return mQueued.load(std::memory_order_relaxed) < ENDED / 2; }

    void hold() { mHolders.fetch_add(1, std::memory_order_relaxed); }
    bool isHeldByOthers() const { return mHolders.load(std::memory_order_acquire) > 1; }

    /// Whoever is the last to let go deletes it, with all that belongs to it.
    void letGo()
    {
        if (mHolders.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

    Semaphore* const requestLock;
    Wait* const wait;

private:
    static constexpr int ENDED =
        std::numeric_limits<int>::min() / 2; ///< what is counted later does not reach zero from there

    ~Sync()
    {
        delete wait;
        delete requestLock;
    }

    static void change(GuiRequestEvent& request, int by)
    {
        if (Widget* const widget = request.requesterWidget())
            of(*widget).mQueued.fetch_add(by, std::memory_order_relaxed);
    }

    std::atomic<int> mHolders{1}; ///< the widget, and each thread that is in a post
    std::atomic<int> mQueued{0};
};

/// One post on a widget: holds the request lock, and what the widget shares, until its end.
class Post {
public:
    explicit Post(Widget& widget) : mSync(Widget::Sync::of(widget))
    {
        mSync.hold();
        mSync.requestLock->take(-1);
    }

    ~Post()
    {
        giveBackLock();
        mSync.letGo();
    }

    Post(const Post&) = delete;
    Post& operator=(const Post&) = delete;

    /// Lets others post from now on.
    void giveBackLock()
    {
        if (mHasLock)
            mSync.requestLock->give();
        mHasLock = false;
    }

    /// Whether the widget is gone by now.
    bool hasEnded() const { return mSync.hasEnded(); }

private:
    Widget::Sync& mSync;
    bool mHasLock = true;
};

/// The request that a queued message carries: out of the queue, and the caller's from now on.
GuiRequestEvent* takeRequest(PegMessage& message);

/// Completes a request that nobody is going to carry out, and deletes it.
void completeUnserved(GuiRequestEvent* request);

} // namespace DisplayAPI
