#pragma once

#include "host/Phone.h"

namespace deskphone {

/// Whether there are but two lines.
inline bool isSmallPanel()
{
    return host::variant() == host::Variant::WP1;
}

} // namespace deskphone
