#pragma once

#include "DisplayAPI/Export.h"

#include <utility>

namespace DisplayAPI {

/// A widget that tells the one who watches it of its end.
class DISPLAYAPI_EXPORT Watched {
public:
    /// False once the watcher is gone: nobody can ask for the widget any more.
    virtual bool isWatched() const = 0;
    virtual void unwatch() = 0;

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
        : mWidget(new WatchedBy<Concrete>(mWidget, std::forward<Args>(args)...))
    {
    }
    WatchedWidget(const WatchedWidget&) = delete;
    WatchedWidget& operator=(const WatchedWidget&) = delete;

    ~WatchedWidget()
    {
        if (auto* watched = dynamic_cast<Watched*>(mWidget))
            watched->unwatch();
    }

    Widget* get() const { return mWidget; }
    Widget* operator->() const { return mWidget; }
    Widget& operator*() const { return *mWidget; }
    friend bool operator==(const WatchedWidget& one, std::nullptr_t) { return one.mWidget == nullptr; }

    /// The pointer itself, for an OwnershipDelegate.
    Widget** slot() { return &mWidget; }

private:
    template <typename Concrete>
    class WatchedBy final : public Concrete, public Watched {
    public:
        template <typename... Args>
        explicit WatchedBy(Widget*& slot, Args&&... args) : Concrete(std::forward<Args>(args)...), mSlot(&slot)
        {
        }
        ~WatchedBy() override
        {
            if (mSlot != nullptr)
                *mSlot = nullptr;
        }

        bool isWatched() const override { return mSlot != nullptr; }
        void unwatch() override { mSlot = nullptr; }

    private:
        Widget** mSlot;
    };

    Widget* mWidget;
};

} // namespace DisplayAPI
