#include "utilities/HardwareVersion.h"

#include <atomic>

namespace {

std::atomic<int> gVariant{0};
std::atomic<int> gSubVariant{0};

} // namespace

int HardwareVersion::getHWVariant()
{
    return gVariant;
}

int HardwareVersion::getHWSubVariant()
{
    return gSubVariant;
}

void HardwareVersion::setHWVariant(int variant)
{
    gVariant = variant;
}

void HardwareVersion::setHWSubVariant(int subVariant)
{
    gSubVariant = subVariant;
}
