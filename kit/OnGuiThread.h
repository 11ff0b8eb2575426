#pragma once

#include "DisplayAPI/Widget.h"

#include <exception>
#include <optional>
#include <type_traits>
#include <utility>

namespace DisplayAPI::kit {

namespace detail {

/// A request that is nothing but a piece of work.
template <typename Work>
class Errand : public Widget {
public:
    explicit Errand(Work& work) : mWork(work) {}

    void run()
    {
        postEvent(0);
        if (mThrown != nullptr)
            std::rethrow_exception(mThrown);
    }

    void processGuiRequest(GuiRequestEvent& request) override
    {
        try {
            mWork();
        } catch (...) {
            mThrown = std::current_exception();
        }
        signalComplete(request);
    }

private:
    Work& mWork;
    std::exception_ptr mThrown;
};

} // namespace detail

/// Runs `work` on the GUI thread and returns its result, or true where it has none: at once on the GUI thread,
/// elsewhere as a request behind all that the caller has asked for so far, and waits for it without limit. What `work`
/// throws is thrown here. Nothing, or false, where the display was deleted before its turn came.
///
///     const std::optional<bool> shown = kit::onGuiThread([&] { return list.getPrivateImpl()->getWidget() != nullptr;
///     });
///
/// Between two requests of other threads: what it does, they see done whole or not at all. It must not wait for a
/// thread that may call the library.
template <typename Work>
auto onGuiThread(Work work)
{
    using Result = std::invoke_result_t<Work&>;
    std::optional<std::conditional_t<std::is_void_v<Result>, bool, Result>> result;
    auto take = [&] {
        if constexpr (std::is_void_v<Result>) {
            work();
            result = true;
        } else {
            result.emplace(work());
        }
    };
    if (Widget::isGuiThread())
        take();
    else
        detail::Errand(take).run();
    if constexpr (std::is_void_v<Result>)
        return result.has_value();
    else
        return result;
}

} // namespace DisplayAPI::kit
