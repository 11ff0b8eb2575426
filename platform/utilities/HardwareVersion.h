#pragma once

/// The hardware as its production data names it; independent of KestrelApplication's variant.
class HardwareVersion {
public:
    static int getHWVariant();
    static int getHWSubVariant();

    /// Where the production data comes from another place than the device itself.
    static void setHWVariant(int variant);
    static void setHWSubVariant(int subVariant);
};
