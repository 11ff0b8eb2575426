#pragma once

#include "host/lcd/Scripts.h"
#include "host/lcd/TextMask.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace host {

/// A letter's ink, from where it is written.
struct Letter {
    unsigned glyph = 0; ///< 0 where the face has none
    Script script = Script::OTHER;
    bool comesInPairs = false;
    long parts = 0;  ///< of a pixel, to where the next letter is written
    int advance = 0; ///< in whole pixels
    int left = 0;    ///< of the ink
    int top = 0;     ///< rows of ink above the base line
    std::vector<TextMask::Word> rows{};
};

struct EndLibrary {
    void operator()(FT_LibraryRec_* library) const;
};
struct EndFace {
    void operator()(FT_FaceRec_* face) const;
};
using FontLibrary = std::unique_ptr<FT_LibraryRec_, EndLibrary>;

FontLibrary startFontLibrary();

/// The plain letters of a face in one size, without antialiasing. Those that were asked for are kept.
class LetterFace {
public:
    /// Has no letters where there is no such file. REQUIRES: the library lives longer.
    LetterFace(const FontLibrary& library, const std::string& path, int pixels);

    /// Null where the face does not have it, and where it is not plain. Valid as long as the face.
    const Letter* letter(char16_t character);

    /// Pixels from where the letter is written to where the next one of the same script is.
    int advanceBefore(const Letter& letter, const Letter& next) const;

private:
    Letter load(char16_t character) const;
    long partsOf(unsigned glyph) const;
    long scaled(long units) const;

    std::unique_ptr<FT_FaceRec_, EndFace> mFace;
    int mPixels;
    std::unordered_map<char16_t, Letter> mLetters;
};

} // namespace host
