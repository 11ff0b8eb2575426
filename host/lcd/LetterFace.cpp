#include "host/lcd/LetterFace.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H

namespace host {

namespace {

/// In the face's own form the leftmost pixel is the highest bit.
std::vector<TextMask::Word> rowsOf(const FT_Bitmap& bitmap)
{
    std::vector<TextMask::Word> rows(bitmap.rows);
    for (unsigned y = 0; y < bitmap.rows; ++y) {
        const unsigned char* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
        for (unsigned x = 0; x < bitmap.width; ++x)
            rows[y] |= static_cast<TextMask::Word>(row[x / 8] >> (7 - x % 8) & 1) << x;
    }
    return rows;
}

/// Of a pixel, in which Pango reckons before it goes to the nearest one.
constexpr long PARTS = 1024;

/// The nearest, the upper one of two.
constexpr long divided(long number, long by)
{
    const long up = 2 * number + by;
    return up >= 0 ? up / (2 * by) : -((2 * by - 1 - up) / (2 * by));
}

int pixels(long parts)
{
    return static_cast<int>(divided(parts, PARTS));
}

} // namespace

void EndLibrary::operator()(FT_LibraryRec_* library) const
{
    FT_Done_FreeType(library);
}

void EndFace::operator()(FT_FaceRec_* face) const
{
    FT_Done_Face(face);
}

FontLibrary startFontLibrary()
{
    FT_Library library = nullptr;
    FT_Init_FreeType(&library);
    return FontLibrary(library);
}

LetterFace::LetterFace(const FontLibrary& library, const std::string& path, int pixels) : mPixels(pixels)
{
    FT_Face face = nullptr;
    if (library == nullptr || FT_New_Face(library.get(), path.c_str(), 0, &face) != 0)
        return;
    mFace.reset(face);
    if (FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixels)) != 0)
        mFace.reset();
}

const Letter* LetterFace::letter(char16_t character)
{
    const auto [found, isNew] = mLetters.try_emplace(character);
    if (isNew)
        found->second = load(character);
    return found->second.glyph != 0 ? &found->second : nullptr;
}

Letter LetterFace::load(char16_t character) const
{
    const Script script = scriptOf(character);
    const FT_UInt glyph = mFace != nullptr && script != Script::OTHER ? FT_Get_Char_Index(mFace.get(), character) : 0;
    if (glyph == 0 || FT_Load_Glyph(mFace.get(), glyph, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
        return {};
    const FT_GlyphSlot slot = mFace->glyph;
    const bool isMono = slot->bitmap.width == 0 || slot->bitmap.pixel_mode == FT_PIXEL_MODE_MONO;
    if (!isMono || slot->bitmap.width > TextMask::WORD_BITS)
        return {};
    const long parts = partsOf(glyph);
    return {.glyph = glyph,
            .script = script,
            .comesInPairs = comesInPairs(character),
            .parts = parts,
            .advance = pixels(parts),
            .left = slot->bitmap_left,
            .top = slot->bitmap_top,
            .rows = rowsOf(slot->bitmap)};
}

/// As the letter was designed, and not as it is drawn in this size.
long LetterFace::partsOf(unsigned glyph) const
{
    if (!FT_IS_SCALABLE(mFace))
        return mFace->glyph->advance.x * PARTS / 64;
    FT_Fixed units = 0;
    FT_Get_Advance(mFace.get(), glyph, FT_LOAD_NO_SCALE, &units);
    return scaled(units);
}

long LetterFace::scaled(long units) const
{
    return divided(units * mPixels * PARTS, mFace->units_per_EM);
}

/// Letters stand closer before some others.
int LetterFace::advanceBefore(const Letter& letter, const Letter& next) const
{
    FT_Vector closer{};
    if (!FT_HAS_KERNING(mFace) ||
        FT_Get_Kerning(mFace.get(), letter.glyph, next.glyph, FT_KERNING_UNSCALED, &closer) != 0 || closer.x == 0)
        return letter.advance;
    return pixels(letter.parts + scaled(closer.x));
}

} // namespace host
