#include "host/drawing/PangoShaper.h"
#include "host/drawing/PngPicture.h"
#include "host/drawing/TextReader.h"
#include "host/lcd/Drawing.h"

namespace host {

namespace {

class PangoDrawing final : public Drawing {
public:
    std::unique_ptr<TextShaper> newShaper(std::vector<std::string> folders) override
    {
        return std::make_unique<PangoShaper>(std::move(folders));
    }

    TextReading read(const std::u16string& text) override { return readText(text); }

    ColourPicture decode(const std::string& png, int mostWidth, int mostHeight) override
    {
        return decodePng(png, mostWidth, mostHeight);
    }

    std::string write(const ColourPicture& picture, const std::string& path) override
    {
        return writePngFile(picture, path);
    }

    std::string encode(const ColourPicture& picture) override { return pngBytes(picture); }
};

} // namespace

} // namespace host

extern "C" host::Drawing* displayapiCreateDrawing()
{
    return new host::PangoDrawing;
}
