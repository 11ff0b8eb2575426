#pragma once

#include "host/lcd/Fonts.h"
#include "toolkit/PString.h"

#include <cstdint>
#include <list>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// A text as a stencil: one byte per pixel, 1 where there is ink. Its top row is ASCENT rows above the base line.
struct TextMask {
    static constexpr int ASCENT = 16;
    static constexpr int HEIGHT = 22;
    static constexpr int MAX_WIDTH = 8192; ///< for a text that is wanted whole

    int width = 0;
    bool cut = false;         ///< more text than fits: an ellipsis stands at its end
    bool rightToLeft = false; ///< the text begins at the right
    bool lacksGlyph = false;  ///< a character stands there as U+FFFD
    std::vector<std::uint8_t> ink;
};

/// Turns texts into stencils and keeps those used last, so that painting a text again is a copy. GUI thread only.
class TextRenderer {
public:
    explicit TextRenderer(std::vector<std::string> fontFolders = Fonts::folders());
    ~TextRenderer();
    TextRenderer(const TextRenderer&) = delete;
    TextRenderer& operator=(const TextRenderer&) = delete;

    /// The stencil of the text in at most `width` pixels. Valid until the next call. Costs nothing for the part of a
    /// text that can never be visible.
    const TextMask& mask(Font font, const PegString& text, int width);

    static constexpr std::size_t MAX_BYTES = 4 << 20;

    /// What the stencils take that are kept: MAX_BYTES at most, but for a single one that is larger.
    std::size_t bytes() const { return mBytes; }

private:
    struct Key {
        Font font;
        int width;
        std::u16string text;

        friend bool operator==(const Key&, const Key&) = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept;
    };
    struct Entry {
        TextMask mask;
        std::list<const Key*>::iterator use;
    };

    static constexpr std::size_t MAX_ENTRIES = 256;

    TextMask render(const Key& key);
    bool isFull() const;
    void forgetOldest();

    Fonts mFonts;
    std::unordered_map<Key, Entry, KeyHash> mEntries;
    std::list<const Key*> mUses; ///< the last used first
    std::size_t mBytes = 0;
    struct Canvas;
    std::unique_ptr<Canvas> mCanvas;
};

} // namespace host
