#pragma once

#include "DisplayAPI/Export.h"

#include <cstddef>
#include <utility>

namespace DisplayAPI {

/// A widget that tells the one who watches it of its end.
class DISPLAYAPI_EXPORT Watched {
public:
    /// False once the watcher is gone: nobody can ask for the widget any more.
    virtual bool isWatched() const = 0;

protected:
    ~Watched() = default;
};

/// A toolkit widget as its private side holds it: a pointer that becomes null when the widget dies. While it is on
/// screen the presentation manager owns it and may be gone before the private side is. GUI thread only.
///
/// Owns nothing: an OwnershipDelegate over `slot()`, declared behind it, says who deletes the widget.
template <typename Widget>
class WatchedWidget {
public:
    /// Makes the widget: a `Concrete`, which is a `Widget` or derived from it.
    template <typename Concrete, typename... Args>
    explicit WatchedWidget(std::in_place_type_t<Concrete>, Args&&... args)
        : mWidget(new WatchedBy<Concrete>(&mWidget, std::forward<Args>(args)...))
    {
    }

    /// Watches in the place of `other`, which is null from then on.
    WatchedWidget(WatchedWidget&& other) noexcept : mWidget(std::exchange(other.mWidget, nullptr))
    {
        watchFrom(&mWidget);
    }
    WatchedWidget& operator=(WatchedWidget&&) = delete;
    ~WatchedWidget() { watchFrom(nullptr); }

    Widget* get() const { return mWidget; }
    Widget* operator->() const { return mWidget; }
    Widget& operator*() const { return *mWidget; }
    friend bool operator==(const WatchedWidget& one, std::nullptr_t) { return one.mWidget == nullptr; }

    /// The pointer itself, for an OwnershipDelegate.
    Widget** slot() { return &mWidget; }

private:
    struct Watch : Watched {
        explicit Watch(Widget** watcher) : slot(watcher) {}
        bool isWatched() const override { return slot != nullptr; }

        Widget** slot; ///< null once nobody watches

    protected:
        ~Watch()
        {
            if (slot != nullptr)
                *slot = nullptr;
        }
    };

    template <typename Concrete>
    struct WatchedBy final : Concrete, Watch {
        template <typename... Args>
        explicit WatchedBy(Widget** watcher, Args&&... args) : Concrete(std::forward<Args>(args)...), Watch(watcher)
        {
        }
    };

    void watchFrom(Widget** slot)
    {
        if (auto* watch = dynamic_cast<Watch*>(mWidget))
            watch->slot = slot;
    }

    Widget* mWidget;
};

} // namespace DisplayAPI
