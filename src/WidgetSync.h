#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "RequestHook.h"
#include "utilities/Semaphore.h"
#include "utilities/Wait.h"

#include <atomic>
#include <cstddef>
#include <new>
#include <typeinfo>

struct PegMessage;

namespace DisplayAPI {

/// What a widget shares with the posts on it. A post that has begun holds it as well, so the widget may be deleted
/// while callers wait, for the request lock or for completion, or are on their way out.
struct Widget::Sync {
    Sync() : requestLock(new (mLock) Semaphore(Semaphore::AVAILABLE, 1, false)), wait(new (mWait) Wait) {}

    /// A copy's: shares lock and Wait object, which lie in the source's, and destroys them as well.
    explicit Sync(const Sync& source) : requestLock(source.requestLock), wait(source.wait) {}
    Sync& operator=(const Sync&) = delete;

    static Sync& of(Widget& widget) { return *widget.mSync; }

    /// Counts the requests that go into the queue for their widget, under the queue's mutex, and those that come out of
    /// it, so that only who has some is looked for there.
    static void entered(GuiRequestEvent& request)
    {
        if (Widget* const widget = request.requesterWidget())
            ++of(*widget).mEntered;
    }

    static void left(GuiRequestEvent& request)
    {
        if (Widget* const widget = request.requesterWidget())
            of(*widget).mLeft.fetch_add(1, std::memory_order_relaxed);
    }

    /// To be asked when nobody else holds this: what the last holder has queued is seen then.
    bool hasQueued() const { return mEntered.load(std::memory_order_relaxed) != mLeft.load(std::memory_order_relaxed); }

    /// From then on no post of this widget reaches the queue.
    void end() { mHasEnded.store(true, std::memory_order_relaxed); }
    bool hasEnded() const { return mHasEnded.load(std::memory_order_relaxed); }

    /// Whoever destroys the widget then sees that the post is through with it, but for what it holds here.
    void hold() { mHolders.fetch_add(1, std::memory_order_release); }
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
    static constexpr std::size_t LINE = 64;

    /// Written by one thread at a time.
    struct Count : std::atomic<unsigned> {
        Count() : std::atomic<unsigned>(0) {}
        void operator++() { store(load(std::memory_order_relaxed) + 1, std::memory_order_relaxed); }
    };

    ~Sync()
    {
        wait->~Wait();
        requestLock->~Semaphore();
    }

    alignas(Semaphore) std::byte mLock[sizeof(Semaphore)]; ///< here and below: rows come by the thousand
    std::atomic<int> mHolders{1};                          ///< the widget, and each thread that is in a post
    Count mEntered;
    std::atomic<bool> mHasEnded{false};
    alignas(LINE) std::atomic<unsigned> mLeft{0}; ///< posters write above, the GUI thread below
    alignas(Wait) std::byte mWait[sizeof(Wait)];
};

/// One post on a widget: holds the request lock, and what the widget shares, until its end.
class Post {
public:
    /// `code` says what for. Behind hold() the widget may be gone.
    Post(Widget& widget, int code) : mFacade(classOf(widget)), mSync(Widget::Sync::of(widget))
    {
        mSync.hold();
        if (mSync.requestLock->take(0))
            return;
        const RequestWait waiting(mFacade, code);
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

    /// The widget's class.
    const std::type_info& facade() const { return mFacade; }

private:
    /// Whoever deletes the widget has seen that the post has begun, by whatever means: ThreadSanitizer has not.
    __attribute__((no_sanitize("thread"))) static const std::type_info& classOf(const Widget& widget)
    {
        return typeid(widget);
    }

    const std::type_info& mFacade;
    Widget::Sync& mSync;
    bool mHasLock = true;
};

/// The request that a queued message carries: out of the queue, and the caller's from now on.
GuiRequestEvent* takeRequest(PegMessage& message);

/// Completes a request that nobody is going to carry out, and deletes it.
void completeUnserved(GuiRequestEvent* request);

} // namespace DisplayAPI
