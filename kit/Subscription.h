#pragma once

#include "DisplayAPI/CommandListener.h"
#include "kit/Fence.h"
#include "kit/OffGuiThread.h"
#include "kit/OnGuiThread.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace DisplayAPI {
class PopupCall;
class PopupNotification;
} // namespace DisplayAPI

namespace DisplayAPI::kit {

namespace detail {

/// Whether this thread is delivering a notification to a subscription.
inline thread_local bool gDelivers = false;

class SubscribedListener : public CommandListener {
public:
    using Handler = std::function<void(Command*, Displayable*)>;

    explicit SubscribedListener(Handler handler) : mHandler(std::make_shared<Handler>(std::move(handler))) {}

    /// A handler may end its own subscription, and this with it.
    void commandAction(Command* command, Displayable* displayable) override
    {
        const std::shared_ptr<Handler> handler = mHandler;
        gDelivers = true;
        (*handler)(command, displayable);
        gDelivers = false;
    }

private:
    std::shared_ptr<Handler> mHandler;
};

} // namespace detail

/// Hears the commands of a displayable as long as it lives.
///
///     kit::Subscription choice(list, [&](Command* command) { ... });
///
/// Threads: make and end it on any thread, also in a handler. The handler takes the command, and the displayable where
/// it wants it; it runs on a thread of the library's, one notification of the process at a time, and must not throw.
/// Ends: when end() or the destructor returns, the handler is not running and does not run again, but where a handler
/// itself has ended it: then it does not run again. To that end they wait for the GUI thread and for all notifications
/// raised before; on the GUI thread they run its loop meanwhile.
/// Ownership: the displayable is not owned and outlives the subscription: declare it before.
/// REQUIRES: not ended on the GUI thread while its loop runs, nor by a listener that is no subscription.
class Subscription {
public:
    /// `source` is anything with addCommandListener() and removeCommandListener(), but for the two popups that take
    /// listeners on the GUI thread only.
    template <typename Source, typename Handler>
    Subscription(Source& source, Handler handler)
        : mListener(std::make_unique<detail::SubscribedListener>(withTwoArguments(std::move(handler)))),
          mRemove([&source, listener = mListener.get()] { source.removeCommandListener(listener); })
    {
        static_assert(!std::is_same_v<PopupCall, Source> && !std::is_same_v<PopupNotification, Source>,
                      "their listeners are added and removed on the GUI thread only: use a CommandListener");
        source.addCommandListener(mListener.get());
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { end(); }

    /// Does nothing where it has ended already.
    void end()
    {
        if (const auto remove = std::exchange(mRemove, nullptr))
            offGuiThread([&] { quieten(remove); });
    }

private:
    template <typename Handler>
    static detail::SubscribedListener::Handler withTwoArguments(Handler handler)
    {
        if constexpr (std::is_invocable_v<Handler&, Command*, Displayable*>)
            return handler;
        else
            return [handler = std::move(handler)](Command* command, Displayable*) mutable { handler(command); };
    }

    void quieten(const std::function<void()>& remove)
    {
        remove();
        onGuiThread([] {}); // the removal is a request like any other: nothing is raised after this
        mListener->retrievePendingCommandAction(nullptr, nullptr);
        // Within a notification nothing else is being delivered, and a fence would wait for it.
        if (!detail::gDelivers)
            Fence().wait();
    }

    std::unique_ptr<detail::SubscribedListener> mListener;
    std::function<void()> mRemove;
};

} // namespace DisplayAPI::kit
