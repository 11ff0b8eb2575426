#pragma once

#include "host/lcd/Fonts.h"
#include "host/lcd/LetterFace.h"
#include "host/lcd/TextMask.h"

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// Draws texts of plain characters letter by letter from the face: as Pango does, but without Pango. Nothing is loaded
/// before the first text. GUI thread only.
class PlainText {
public:
    explicit PlainText(std::vector<std::string> folders) : mFolders(std::move(folders)) {}

    /// One for each unit of the text. None where it takes more than plain letters, or others than the font has.
    std::optional<std::vector<TextEdges>> edges(Font font, std::u16string_view text);

    /// In at most `width` pixels; with an ellipsis at its end where the text takes more.
    std::optional<TextMask> draw(Font font, std::u16string_view text, int width);

private:
    /// Where a letter is written.
    struct Place {
        const Letter* letter;
        int begin = 0;
        int end = 0;
        Script script = Script::COMMON; ///< of the letters among which it stands
    };
    using Line = std::vector<Place>;

    /// The text of before: its edges and its stencil are wanted one after the other, and where somebody types the next
    /// one begins as it does.
    struct Laid {
        Font font{};
        std::u16string text{};
        Line line{};
        bool isPlain = true;
    };

    LetterFace& faceOf(Font font);
    const Line* lay(Font font, std::u16string_view text);
    static bool layFrom(std::size_t at, Line& line, LetterFace& face, std::u16string_view text);
    static void placeFrom(std::size_t at, Line& line, const LetterFace& face);
    static bool needsShaper(const Line& line);
    static bool cut(Line& line, LetterFace& face, int width);
    static Script firstScriptOf(std::span<const Place> line);
    static int endOf(const Line& line);

    std::vector<std::string> mFolders;
    FontLibrary mLibrary;
    std::array<std::unique_ptr<LetterFace>, STYLE_COUNT> mFaces; ///< by Font
    Laid mLaid;
};

} // namespace host
