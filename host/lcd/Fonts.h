#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// The looks of texts: DejaVu Sans Condensed for the graphic panels, Terminus 8 x 16 for the panel of 24 characters a
/// line.
enum class Font : unsigned char { TEXT, TEXT_BOLD, FIXED, FIXED_BOLD };

/// Stands for a character that no font has.
constexpr char16_t REPLACEMENT = 0xFFFD;

/// Stands for what is cut off.
constexpr char16_t ELLIPSIS = 0x2026;

/// A font of the panel: only the project's own, whatever else the machine has, so that pictures are the same
/// everywhere.
struct FontFace {
    const char* family;
    const char* file;
    const char* cure; ///< where it is missing
};

/// Up to BIWIDTH those that nearly every text needs; the large ones behind them have what is missing there.
enum FaceIndex : std::size_t { DEJAVU, DEJAVU_BOLD, TERMINUS, TERMINUS_BOLD, BIWIDTH, UNIFONT, FACE_COUNT };

extern const std::array<FontFace, FACE_COUNT> FACES;

/// A look: its own face and the one that helps out before the large ones do.
struct FontStyle {
    const char* families;
    bool bold;
    int pixels;
    FaceIndex face;
    FaceIndex helper;
};

constexpr std::size_t STYLE_COUNT = 4;

/// Of the font.
const FontStyle& styleOf(Font font);

/// Where Debian's packages put the fonts, and the build the one that it makes.
const std::vector<std::string>& fontFolders();

} // namespace host
