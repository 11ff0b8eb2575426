#include "utilities/HardwareVersion.h"

#include "host/Phone.h"

#include <atomic>

namespace {

constexpr int WP1_HARDWARE = 0;
constexpr int PLAIN_HARDWARE = 2;

std::atomic<int> gVariant{HardwareVersion::AS_BUILT};
std::atomic<int> gSubVariant{0};

int variantOfPanel()
{
    return host::variant() == host::Variant::WP1 ? WP1_HARDWARE : PLAIN_HARDWARE;
}

} // namespace

int HardwareVersion::getHWVariant()
{
    const int variant = gVariant;
    return variant != AS_BUILT ? variant : variantOfPanel();
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
