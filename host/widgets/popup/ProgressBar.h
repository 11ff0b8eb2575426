#pragma once

#include "host/widgets/form/Field.h"

namespace host {

/// How far something is, from 0 to 100: as a bar that fills from where texts begin, as a bar of ten steps, as a number,
/// or as a bar with its number. It is only looked at.
class ProgressBar : public Field {
public:
    enum class Kind { NONE, BAR, PERCENT, STEPS, BAR_AND_PERCENT };

    explicit ProgressBar(Kind kind) : mKind(kind) {}

    /// What lies beyond 0 and 100 is the nearer of the two. Returns whether that is another one.
    bool setValue(int percent);
    int value() const { return mValue; }

    int heightFor(int width) const override;
    bool key(int) override { return false; }
    bool takesFocus() const override { return false; }
    void Draw(PegPainter& painter) override;

private:
    void drawBar(PegPainter& painter, const PegRect& area) const;
    void drawSteps(PegPainter& painter, const PegRect& area) const;
    void drawNumber(PegPainter& painter, const PegRect& area, Align align) const;

    const Kind mKind;
    int mValue = 0;
};

} // namespace host
