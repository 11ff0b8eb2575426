#pragma once

#include "host/lcd/Drawing.h"
#include "host/lcd/PlainText.h"
#include "toolkit/PString.h"

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// Turns texts into stencils and keeps those used last, so that painting a text again is a copy. A text of plain
/// letters is put together from theirs; any other is what Pango is loaded for. GUI thread only.
class TextRenderer {
public:
    explicit TextRenderer(std::vector<std::string> folders = fontFolders());
    TextRenderer(const TextRenderer&) = delete;
    TextRenderer& operator=(const TextRenderer&) = delete;

    /// The stencil of the text in at most `width` pixels. Valid until the next call. Costs nothing for the part of a
    /// text that can never be visible.
    const TextMask& mask(Font font, const PegString& text, int width);

    /// One for each unit of the text, as it stands in a stencil of MAX_WIDTH; fewer where it is longer than can be
    /// visible. Valid until the next call.
    const std::vector<TextEdges>& edges(Font font, const PegString& text);

    static constexpr std::size_t MAX_BYTES = 1 << 20;

    /// What the stencils and edges of texts take that are kept: MAX_BYTES at most, but for a single text that is
    /// larger.
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
        std::optional<TextMask> mask; ///< none before it is asked for
        std::optional<std::vector<TextEdges>> edges;
        std::list<const Key*>::iterator use;

        std::size_t bytes() const;
    };

    static constexpr std::size_t MAX_ENTRIES = 256;

    Entry& entryFor(const Key& key);
    TextMask draw(const Key& key);
    std::vector<TextEdges> measure(const Key& key);
    TextShaper* shaper();
    bool isFull() const;
    void makeRoom();

    std::vector<std::string> mFolders;
    PlainText mPlainText;
    std::unique_ptr<TextShaper> mShaper; ///< made when a text needs it
    std::unordered_map<Key, Entry, KeyHash> mEntries;
    std::list<const Key*> mUses; ///< the last used first
    std::size_t mBytes = 0;
};

} // namespace host
