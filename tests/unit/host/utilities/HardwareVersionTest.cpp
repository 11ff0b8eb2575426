#include "utilities/HardwareVersion.h"

#include "host/Phone.h"
#include "widgets/KestrelApplication.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(HardwareVersion, KeepsWhatIsSet)
{
    HardwareVersion::setHWVariant(8);
    HardwareVersion::setHWSubVariant(3);
    EXPECT_EQ(HardwareVersion::getHWVariant(), 8);
    EXPECT_EQ(HardwareVersion::getHWSubVariant(), 3);
    HardwareVersion::setHWVariant(HardwareVersion::AS_BUILT);
    HardwareVersion::setHWSubVariant(0);
}

TEST(HardwareVersion, IsIndependentOfTheApplicationsVariant)
{
    KestrelApplication application;
    HardwareVersion::setHWVariant(8);
    EXPECT_EQ(application.getHardwareVariant(), 1);
    application.setHardwareVariant(0);
    EXPECT_EQ(HardwareVersion::getHWVariant(), 8);
    HardwareVersion::setHWVariant(HardwareVersion::AS_BUILT);
}

TEST(HardwareVersion, IsThatOfThePanelWhereNothingElseIsSet)
{
    for (const auto& [panel, variant] :
         {std::pair{host::Variant::PLAIN, 2}, std::pair{host::Variant::NARROW, 2}, std::pair{host::Variant::WP1, 0}}) {
        host::setVariant(panel);
        EXPECT_EQ(HardwareVersion::getHWVariant(), variant) << host::nameOf(panel);
    }
    host::setVariant(host::Variant::PLAIN);
}

} // namespace
