#pragma once

/// The hardware as its production data names it; what is set here is independent of KestrelApplication's variant.
class HardwareVersion {
public:
    /// The variant of the device itself, whatever that is.
    static constexpr int AS_BUILT = -1;

    /// 0, 1 and 8 have the 208 x 42 panel.
    static int getHWVariant();
    static int getHWSubVariant();

    /// Where the production data comes from another place than the device itself, which it is at first.
    static void setHWVariant(int variant);
    static void setHWSubVariant(int subVariant);
};
