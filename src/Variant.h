#pragma once

#include "utilities/HardwareVersion.h"
#include "widgets/KestrelApplication.h"

namespace DisplayAPI {

/// The current application's hardware variant; 1 where there is none.
inline int hardwareVariant()
{
    return KestrelApplication::getHardwareVariant(KestrelApplication::getCurrentApplication());
}

constexpr int FULL_PANEL = 1;  ///< 240 x 128 and its narrow form
constexpr int SMALL_PANEL = 0; ///< 208 x 42

enum SoftwareType : int { SIP = 0, KVX = 1, UNKNOWN = 2 };

/// The current application's software type; UNKNOWN where there is none.
inline int softwareType()
{
    const KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    return application != nullptr ? application->getSoftwareType() : UNKNOWN;
}

inline bool isFullPanel()
{
    return hardwareVariant() == FULL_PANEL;
}

/// The same question, for the classes that ask the production data instead of the application.
inline bool isFullPanelHardware()
{
    const int variant = HardwareVersion::getHWVariant();
    return variant != 0 && variant != 1 && variant != 8;
}

} // namespace DisplayAPI
