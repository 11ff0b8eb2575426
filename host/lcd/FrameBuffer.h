#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// The grey levels of the panel.
enum class Level : std::uint8_t { BARE, LIGHT, MIDDLE, DARK };

/// The panel's memory: one byte per pixel, row by row.
class FrameBuffer {
public:
    FrameBuffer(int width, int height)
        : mWidth(width), mHeight(height), mPixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {
    }

    int width() const { return mWidth; }
    int height() const { return mHeight; }

    /// REQUIRES: the pixel is on the panel.
    std::uint8_t* at(int x, int y) { return &mPixels[static_cast<std::size_t>(y * mWidth + x)]; }

    const std::vector<std::uint8_t>& pixels() const { return mPixels; }

private:
    int mWidth;
    int mHeight;
    std::vector<std::uint8_t> mPixels;
};

} // namespace host
