#pragma once

#include "host/lcd/Fonts.h"
#include "host/lcd/FrameBuffer.h"
#include "host/lcd/Icons.h"
#include "toolkit/PString.h"
#include "toolkit/PegRect.h"

namespace host {
class TextMap;
class TextRenderer;
struct Picture;
struct TextMask;
struct TextRun;

enum class Align { LEFT, CENTRE, RIGHT };

struct TextLook {
    Font font = Font::TEXT;
    Align align = Align::LEFT;
    bool inverted = false; ///< bare on dark; whoever paints the text has filled the area dark
    bool runs = false;     ///< changes by itself as time passes
    bool dimmed = false;   ///< grey
};

/// What such a text is painted with.
Level inkOf(const TextLook& look);
} // namespace host

class PegThing;

/// Paints on the panel, inside its clip only. Made by the panel for the time of a frame.
class PegPainter {
public:
    PegPainter(host::FrameBuffer& buffer, host::TextMap& texts, host::TextRenderer& renderer, const PegRect& clip);

    /// The same, further clipped.
    PegPainter clippedTo(const PegRect& area) const;

    /// The same, clipped to the thing's area: what is painted from now on is the thing's.
    PegPainter paintingFor(const PegThing& thing) const;

    const PegRect& clip() const { return mClip; }
    bool isClippedOut(const PegRect& area) const;

    /// Covers what is below, texts included.
    void fill(const PegRect& area, host::Level level);

    /// A line one pixel wide just inside the edges of `area`.
    void frame(const PegRect& area, host::Level level);

    /// In the middle of `cell`.
    void icon(const host::Icon& icon, const PegRect& cell, host::Level level);

    /// In the middle of `cell`, cut to it. An empty one is nothing.
    void picture(const host::Picture& picture, const PegRect& cell);

    /// On one line, in the vertical middle of `cell`; ends in an ellipsis where it is too long for it.
    void text(const PegRect& cell, const PegString& text, const host::TextLook& look);

    /// The same from the edge at which the text begins to be read, whole: `gone` pixels of it lie beyond that edge, and
    /// `gap` pixels behind its end it begins again.
    void scrolledText(const PegRect& cell, const PegString& text, const host::TextLook& look, int gone, int gap);

    /// The pixels that text() takes in a cell that is `most` pixels wide.
    int textWidth(const PegString& text, host::Font font, int most);

    /// Whether its own characters make the text one that is read from the right.
    bool beginsAtTheRight(const PegString& text, host::Font font);

private:
    void fillClipped(const PegRect& area, host::Level level);
    void note(host::TextRun run);
    void stencil(const host::TextMask& mask, const PegRect& box, host::Level level, const PegRect& limits);

    host::FrameBuffer& mBuffer;
    host::TextMap& mTexts;
    host::TextRenderer& mRenderer;
    PegRect mClip;
    std::uint8_t mWidget = 0; ///< the PegType of whoever paints
};
