#pragma once

#include "host/lcd/Fonts.h"
#include "host/lcd/TextMask.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// A picture in colours, 0xRRGGBB, row by row.
struct ColourPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels{};
};

/// How the characters of a line are read.
struct TextReading {
    bool fromTheRight = false;
    std::vector<std::uint8_t> levels; ///< of each unit; odd levels are read from the right
    std::vector<bool> begins;         ///< whether a character begins at the unit: marks belong to the one before
};

/// Lays out texts of every script. GUI thread only.
class TextShaper {
public:
    virtual ~TextShaper() = default;

    /// The stencil of the text, which is not empty, in at most `width` pixels; none where there is no font at all.
    virtual std::optional<TextMask> draw(Font font, const std::u16string& text, int width) = 0;

    /// One for each unit of the text, as it stands in a stencil of `width`; none where there is no font at all.
    virtual std::optional<std::vector<TextEdges>> edges(Font font, const std::u16string& text, int width) = 0;
};

/// What Pango and cairo do for the panel. They bring more shared objects than everything else together, and most
/// telephones show their first screen without them: so they are behind a shared object of their own beside the host's,
/// which is loaded when something needs it and stays.
///
/// Where it cannot be loaded stderr says so once; then there are neither fonts nor pictures. Any thread.
class Drawing {
public:
    virtual ~Drawing() = default;

    /// With the fonts that lie in the folders. Null where there is nothing to shape with.
    virtual std::unique_ptr<TextShaper> newShaper(std::vector<std::string> folders) = 0;

    /// Of units that are drawn.
    virtual TextReading read(const std::u16string& text) = 0;

    /// The picture of a PNG file's bytes on white, scaled down to fit, never up; empty where there is none.
    virtual ColourPicture decode(const std::string& png, int mostWidth, int mostHeight) = 0;

    /// Writes a PNG file. Returns why it could not; empty when all is well.
    virtual std::string write(const ColourPicture& picture, const std::string& path) = 0;

    /// The same as bytes; empty where it could not.
    virtual std::string encode(const ColourPicture& picture) = 0;
};

/// What the shared object exports under the name "displayapiCreateDrawing".
using CreateDrawing = Drawing* (*)();

Drawing& drawing();

/// What drawing() does the first time, with a shared object of that name; never null.
Drawing* loadDrawing(const std::string& file);

} // namespace host
