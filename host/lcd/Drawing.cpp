#include "host/lcd/Drawing.h"

#include "host/utilities/Beside.h"

#include <cstdio>
#include <utility>

namespace host {

namespace {

/// In the place of the shared object where it cannot be loaded.
class NoDrawing final : public Drawing {
public:
    explicit NoDrawing(std::string reason) : mReason(std::move(reason)) {}

    std::unique_ptr<TextShaper> newShaper(std::vector<std::string>) override { return nullptr; }

    TextReading read(const std::u16string& text) override
    {
        return {.levels = std::vector<std::uint8_t>(text.size()), .begins = std::vector<bool>(text.size(), true)};
    }

    ColourPicture decode(const std::string&, int, int) override { return {}; }

    std::string write(const ColourPicture&, const std::string& path) override
    {
        return "cannot write " + path + ": " + mReason;
    }

    std::string encode(const ColourPicture&) override { return {}; }

private:
    const std::string mReason;
};

} // namespace

Drawing* loadDrawing(const std::string& file)
{
    const LoadedFunction create = loadBesideTheHost(file, "displayapiCreateDrawing");
    if (create.function != nullptr)
        return reinterpret_cast<CreateDrawing>(create.function)();
    std::fprintf(stderr, "displayapi: %s. Going on without pictures and texts that need shaping.\n",
                 create.error.c_str());
    return new NoDrawing(create.error);
}

/// Not destroyed when the process ends: another thread may still use it.
Drawing& drawing()
{
    static Drawing* const loaded = loadDrawing("libdisplayapi_drawing.so");
    return *loaded;
}

} // namespace host
