#pragma once

#include "host/lcd/Fonts.h"
#include "toolkit/PString.h"
#include "toolkit/PegRect.h"
#include "toolkit/PegScreen.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class PegPainter;

namespace host {

struct TextEdges;

/// What stands where on the panel, as text. `text` is UTF-8 and whole, also where only a part of it fits (`cut`); of
/// a text longer than MAX_LENGTH characters it is the beginning.
struct TextRun {
    static constexpr std::size_t MAX_LENGTH = 4096;

    PegRect area;
    std::string text;
    bool inverted = false;
    bool cut = false;
    bool lacksGlyph = false; ///< a character of it stands there as U+FFFD: no font has it
    bool runs = false;       ///< changes by itself as time passes: a clock, a timer, a ticker
    std::uint8_t widget = 0; ///< the PegType of the thing that has painted it

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// A copy of the panel. One byte per pixel, row by row: 0 is the bare panel, 3 the darkest grey level.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels{};
    std::vector<TextRun> texts{}; ///< top to bottom, left to right
    std::uint64_t frame = 0;      ///< counts finished frames
    PegRect focus{0, 0, -1, -1};  ///< of the thing that has the focus; empty where none has it
};

/// The panel: a buffer of four grey levels, the area that has to be painted again, and the texts that stand on it.
///
/// Invalidating and painting are the GUI thread's; picture(), reading() and the frame listener are for any thread.
/// Lock: one mutex guards pixels, texts and the listener; it is held while a frame is painted and while it is copied,
/// and is a leaf: the frame listener is called without it.
class Lcd final : public PegScreen {
public:
    Lcd(int width, int height);
    ~Lcd() override;

    int width() const { return mWidth; }
    int height() const { return mHeight; }

    void Invalidate(PegThing* thing) override;
    void Update() override;

    /// Adds to what has to be painted again, cut to the panel.
    void invalidate(const PegRect& area);

    /// Something has to be painted again, or the focus has moved: that makes a frame of its own.
    bool isDirty() const;

    /// Milliseconds (of real time) until the next frame is due; 0 when it is. Only of interest while dirty.
    int untilFrameDue() const;

    /// Paints what is dirty: from the presentation manager's bottom child to its top one, clipped to the dirty
    /// rectangles; a window on top that fills a rectangle is all that is painted there. Then tells the frame listener.
    /// Nothing is done where nothing is dirty.
    void paint();

    /// How wide the text is when nothing of it is cut off; at most TextMask::MAX_WIDTH. GUI thread only.
    int textWidth(Font font, const PegString& text);

    /// Where the characters of the text stand when nothing of it is cut off: TextRenderer::edges(). GUI thread only.
    const std::vector<TextEdges>& textEdges(Font font, const PegString& text);

    Picture picture() const;

    /// The same without the pixels.
    Picture reading() const;

    /// Called on the GUI thread after each frame; must not block. An empty function removes it.
    void setFrameListener(std::function<void()> listener);

    /// The panel of the running toolkit; null when it is not running. GUI thread, or while the toolkit is known to run.
    static Lcd* current();

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
    int mWidth;
    int mHeight;
};

} // namespace host
