#pragma once

#include "host/Phone.h"

namespace deskphone {

/// Whether there are but two lines.
inline bool isSmallPanel()
{
    return host::variant() == host::Variant::WP1;
}

/// Whether a line has room for few words only.
inline bool isNarrowPanel()
{
    return host::variant() != host::Variant::PLAIN;
}

} // namespace deskphone
