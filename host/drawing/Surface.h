#pragma once

#include <cairo.h>
#include <cstdint>
#include <memory>

namespace host {

struct DestroySurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

/// Pixels as the drawing library has them. Never null; the status tells whether there are any.
using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;

struct DestroyContext {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};

/// What draws on a surface, and keeps it meanwhile.
using Context = std::unique_ptr<cairo_t, DestroyContext>;

inline bool isFine(const Surface& surface)
{
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

/// Of CAIRO_FORMAT_RGB24 and CAIRO_FORMAT_ARGB32.
inline std::uint32_t* rowOf(const Surface& surface, int y)
{
    auto* data = cairo_image_surface_get_data(surface.get()) + y * cairo_image_surface_get_stride(surface.get());
    return reinterpret_cast<std::uint32_t*>(data);
}

} // namespace host
