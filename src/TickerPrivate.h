#pragma once

#include "DisplayAPI/TickerPrivateIfc.h"
#include "DisplayAPI/WatchedWidget.h"

class TickerWidget;

namespace DisplayAPI {

/// A ticker on the toolkit's widget, which it owns until somebody asks for it. Empty when that one has deleted it. GUI
/// thread only.
class TickerPrivate : public TickerPrivateIfc {
public:
    explicit TickerPrivate(const std::string& text);
    TickerPrivate(const TickerPrivate&) = delete;
    TickerPrivate& operator=(const TickerPrivate&) = delete;
    ~TickerPrivate() override;

    void setText(std::string text) override;
    std::string getText() override;
    PegThing* getWidget() override;

    /// Empty: what runs by itself is no part of the screen as text.
    std::string serialise() const;

private:
    bool mOwnsWidget = true;
    WatchedWidget<TickerWidget> mWidget; ///< null when its new owner has deleted it
};

} // namespace DisplayAPI
