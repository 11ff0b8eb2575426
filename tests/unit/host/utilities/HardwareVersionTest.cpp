#include "utilities/HardwareVersion.h"

#include "widgets/KestrelApplication.h"

#include <gtest/gtest.h>

namespace {

TEST(HardwareVersion, KeepsWhatIsSet)
{
    HardwareVersion::setHWVariant(8);
    HardwareVersion::setHWSubVariant(3);
    EXPECT_EQ(HardwareVersion::getHWVariant(), 8);
    EXPECT_EQ(HardwareVersion::getHWSubVariant(), 3);
    HardwareVersion::setHWVariant(0);
    HardwareVersion::setHWSubVariant(0);
}

TEST(HardwareVersion, IsIndependentOfTheApplicationsVariant)
{
    KestrelApplication application;
    HardwareVersion::setHWVariant(8);
    EXPECT_EQ(application.getHardwareVariant(), 1);
    application.setHardwareVariant(0);
    EXPECT_EQ(HardwareVersion::getHWVariant(), 8);
    HardwareVersion::setHWVariant(0);
}

} // namespace
