#pragma once

#include "host/widgets/status/StatusLines.h"
#include "host/widgets/status/StatusTime.h"
#include "toolkit/PegThing.h"

#include <functional>

namespace host {

/// The status lines of a screen that shows them itself, at its top: those that are not blank, the clock at the end of
/// the first one, and a rule below. It says how high it has to be; where it stands is its screen's business. GUI thread
/// only.
class StatusStrip : public PegThing, private StatusTimeView {
public:
    /// `resized` is called when its height has changed.
    explicit StatusStrip(std::function<void()> resized) : mResized(std::move(resized)) {}
    ~StatusStrip() override { StatusTime::watch(*this, false); }

    /// 0 to 6; others are cut to that.
    void setLines(int lines);

    /// UTF-8. Lines outside 0 to 5 are ignored.
    void setText(int line, std::string text);

    /// The pixels that its screen has for the lines: as many are in sight as fit.
    void setRoom(int pixels) { mMost = pixels / LINE_HEIGHT; }

    /// Those that are in sight.
    int lines() const;
    const std::string& text(int line) const { return mStatus.text(line); }

    /// In pixels; 0 where no line is in sight.
    int height() const;

    void Draw(PegPainter& painter) override;

protected:
    void VisibilityChanged() override;

private:
    static constexpr int LINE_HEIGHT = 16;
    static constexpr int RULE = 1;

    const StatusTime* statusTime() const override { return StatusTime::current(); }
    void statusTimeChanged() override;
    PegRect lineArea(int line) const;
    void update();

    std::function<void()> mResized;
    StatusLines mStatus;
    int mShown = 0; ///< what would be in sight where there is room
    int mMost = StatusLines::MAX_LINES;
};

} // namespace host
