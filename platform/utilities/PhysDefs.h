#pragma once

namespace PhysDefs {

/// The key-and-lamp layout of a telephone. The library passes it through.
enum hardwareSubVariant : int { NO_SUB_VARIANT = 0 };

} // namespace PhysDefs
