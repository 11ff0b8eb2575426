#pragma once

#include "host/lcd/Lcd.h"

#include <vector>

namespace host {

/// The texts on the panel. After each pass over a dirty rectangle it holds what a pass over the whole panel would
/// leave: forget what the rectangle touches, then let painting add and cover again, bottom to top.
class TextMap {
public:
    /// Begins a pass: every text that shares a pixel with `dirty` will be painted again if it still stands there.
    void forget(const PegRect& dirty);

    /// Something opaque is painted over `area`. Only texts of this pass, those that share a pixel with `clip`, are
    /// below it; others have been painted on top of the same thing earlier. A text that still shows in part stays.
    void cover(const PegRect& area, const PegRect& clip);

    /// Takes the place of a text with the same area.
    void add(TextRun run);

    /// Top to bottom, left to right.
    std::vector<TextRun> sorted() const;

private:
    std::vector<TextRun> mRuns;
};

} // namespace host
