#pragma once

#include "host/drawing/PangoFonts.h"
#include "host/lcd/Drawing.h"

struct _PangoLayoutLine;

namespace host {

/// Has Pango lay out a text, and cairo draw it.
class PangoShaper final : public TextShaper {
public:
    explicit PangoShaper(std::vector<std::string> folders);
    ~PangoShaper() override;

    std::optional<TextMask> draw(Font font, const std::u16string& text, int width) override;
    std::optional<std::vector<TextEdges>> edges(Font font, const std::u16string& text, int width) override;

private:
    /// A text that is laid out, which its stencil and its edges share. The line is null where there is no font.
    struct Laid {
        Font font{};
        int width = 0;
        std::u16string text;  ///< as it was asked for
        std::u16string shown; ///< with what stands in the place of characters that no font has
        _PangoLayout* layout = nullptr;
        _PangoLayoutLine* line = nullptr;
    };
    struct Canvas;

    const Laid& lay(Font font, const std::u16string& text, int width);

    PangoFonts mFonts;
    Laid mLaid;
    std::unique_ptr<Canvas> mCanvas;
};

} // namespace host
