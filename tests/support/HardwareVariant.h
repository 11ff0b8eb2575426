#pragma once

#include "utilities/HardwareVersion.h"

namespace test {

/// What the production data says as long as it lives; then nothing, as at the start of a process.
class HardwareVariant {
public:
    explicit HardwareVariant(int variant) { HardwareVersion::setHWVariant(variant); }
    HardwareVariant(const HardwareVariant&) = delete;
    HardwareVariant& operator=(const HardwareVariant&) = delete;
    ~HardwareVariant() { HardwareVersion::setHWVariant(HardwareVersion::AS_BUILT); }
};

} // namespace test
