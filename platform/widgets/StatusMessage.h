#pragma once

#include "toolkit/PegWindow.h"

#include <memory>
#include <string>

/// A message above everything else that goes away by itself. GUI thread only.
class StatusMessage : public PegWindow {
public:
    /// The text is UTF-8. The time-out counts from now, in milliseconds, whether the message is visible or not; 0 is
    /// for a message that stays until it is taken down.
    StatusMessage(const std::string& text, unsigned int timeout);
    ~StatusMessage() override;

    /// When the time is up the message leaves its parent, who does not own it any more, and takes no room from then on:
    /// whoever puts it back shows nothing.
    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;

    const std::string& text() const;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};
