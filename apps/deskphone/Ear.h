#pragma once

#include "DisplayAPI/CommandListener.h"

#include <atomic>
#include <functional>

namespace deskphone {

/// Hears the commands of what keeps its listeners as long as it lives, until it is told to stop. Declare it before
/// what it hears.
class Ear : public DisplayAPI::CommandListener {
public:
    /// `heard` runs on a thread of the library's.
    explicit Ear(std::function<void(DisplayAPI::Command*)> heard) : mHeard(std::move(heard)) {}

    /// `heard` is not called after this. Not on the GUI thread.
    void stop();

private:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    std::function<void(DisplayAPI::Command*)> mHeard;
    std::atomic<bool> mIsDeaf{false};
};

} // namespace deskphone
