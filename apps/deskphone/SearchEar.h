#pragma once

#include "DisplayAPI/ItemStateListener.h"

#include <atomic>
#include <functional>
#include <utility>

namespace DisplayAPI {
class Item;
}

namespace deskphone {

/// Hears that the user types in a search list. Declare it before the list, which keeps it as long as it lives.
class SearchEar : public DisplayAPI::ItemStateListener {
public:
    /// `heard` runs on a thread of the library's.
    explicit SearchEar(std::function<void()> heard) : mHeard(std::move(heard)) {}

    /// `heard` is not called after this. Not on the GUI thread.
    void stop();

private:
    void itemStateChanged(DisplayAPI::Item* item) override;

    std::function<void()> mHeard;
    std::atomic<bool> mIsDeaf{false};
};

} // namespace deskphone
